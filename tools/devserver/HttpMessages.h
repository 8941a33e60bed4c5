#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QJsonObject>
#include <QString>

#include <functional>

namespace corvane::devserver {

/// Max size of one HTTP request or signaling message; anything larger is a fault.
constexpr qint64 kMaxMessageBytes = qint64{256} * 1024;

/// Max number of entries in the request and message logs, which keep the latest ones.
constexpr qsizetype kMaxLogEntries = 1000;

/// An HTTP request as it arrived.
struct Request {
    QString method; ///< in capitals
    QString path;   ///< decoded, without the query
    QByteArray authorization;
    QByteArray contentType;
    QByteArray body;
    QHostAddress remoteAddress;
};

/// The server's own answer to a request.
struct Answer {
    int status = 200;
    QByteArray body;
    QByteArray contentType = "application/json";
    std::function<void()> afterwards = {}; ///< runs once the answer is written; may be empty
};

Answer jsonAnswer(const QJsonObject& object, int status = 200);

/// A refusal: `{"detail": detail}`.
Answer refusal(int status, const QString& detail);

/// The object in `text`; empty when it is not a JSON object.
QJsonObject jsonObject(const QByteArray& text);

QByteArray compactJson(const QJsonObject& object);

} // namespace corvane::devserver
