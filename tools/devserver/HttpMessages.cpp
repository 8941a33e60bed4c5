#include "devserver/HttpMessages.h"

#include <QJsonDocument>

namespace corvane::devserver {

Answer jsonAnswer(const QJsonObject& object, int status) {
    return {.status = status, .body = compactJson(object)};
}

Answer refusal(int status, const QString& detail) {
    return jsonAnswer({{QStringLiteral("detail"), detail}}, status);
}

QJsonObject jsonObject(const QByteArray& text) {
    return QJsonDocument::fromJson(text).object();
}

QByteArray compactJson(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace corvane::devserver
