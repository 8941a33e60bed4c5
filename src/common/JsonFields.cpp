#include "common/JsonFields.h"

namespace corvane {

namespace {

// Copying and writing a document recurse once per level. Real messages have only a few levels.
constexpr int kMaxDepth = 64;

} // namespace

std::optional<QString> jsonString(const nlohmann::json& json, std::string_view key) {
    if (!json.is_object()) {
        return std::nullopt;
    }
    const auto field = json.find(key);
    if (field == json.end() || !field->is_string()) {
        return std::nullopt;
    }
    return QString::fromStdString(field->get_ref<const std::string&>());
}

QString jsonStringOrEmpty(const nlohmann::json& json, std::string_view key) {
    return jsonString(json, key).value_or(QString());
}

std::string jsonText(const nlohmann::json& json) {
    return json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

nlohmann::json parseJson(std::string_view text, std::string* error) {
    std::string complaint;
    try {
        bool tooDeep = false;
        auto document = nlohmann::json::parse(
            text, [&tooDeep](int depth, nlohmann::json::parse_event_t, const nlohmann::json&) {
                tooDeep = tooDeep || depth > kMaxDepth;
                return !tooDeep;
            });
        if (!tooDeep) {
            return document;
        }
        complaint = "nested too deeply";
    } catch (const nlohmann::json::exception& exception) {
        complaint = exception.what();
    }
    if (error != nullptr) {
        *error = complaint;
    }
    return nlohmann::json(nlohmann::json::value_t::discarded);
}

} // namespace corvane
