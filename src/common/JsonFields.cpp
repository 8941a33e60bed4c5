#include "JsonFields.h"

namespace corvane {

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

std::string jsonText(const nlohmann::json& json) {
    return json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

nlohmann::json parseJson(std::string_view text, std::string* error) {
    try {
        return nlohmann::json::parse(text);
    } catch (const nlohmann::json::exception& exception) {
        if (error != nullptr) {
            *error = exception.what();
        }
        return nlohmann::json(nlohmann::json::value_t::discarded);
    }
}

} // namespace corvane
