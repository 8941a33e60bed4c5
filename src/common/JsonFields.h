#pragma once

#include <QString>
#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

/// The string under `key`; no value when `json` is not an object, the key is missing or its value
/// is not a string. Never throws.
std::optional<QString> jsonString(const nlohmann::json& json, std::string_view key);

/// The same, or an empty string.
QString jsonStringOrEmpty(const nlohmann::json& json, std::string_view key);

/// Compact text with sorted keys. Bytes that are not UTF-8 are replaced rather than reported.
std::string jsonText(const nlohmann::json& json);

/// The parsed document, or a discarded value (`is_discarded()`) when `text` is not JSON or nests
/// deeper than 64 levels. The parser's complaint goes to `error` when given. Never throws.
nlohmann::json parseJson(std::string_view text, std::string* error = nullptr);

} // namespace corvane
