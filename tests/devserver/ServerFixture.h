#pragma once

#include "DevServer.h"

#include <QNetworkAccessManager>
#include <QTcpSocket>
#include <QWebSocket>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace corvane::devserver {

/// What came back from a request; status 0 when nothing did.
struct HttpResult {
    int status = 0;
    QByteArray body;

    QJsonObject json() const { return jsonObject(body); }
    QString detail() const { return json()[QStringLiteral("detail")].toString(); }
};

/// A device's signaling socket and what was pushed to it.
struct Partner {
    Device device;
    std::unique_ptr<QWebSocket> socket = std::make_unique<QWebSocket>();
    QList<QJsonObject> pushed = {};

    void send(const QJsonObject& message);
};

/// A server on free ports, with blocking helpers for its three sides.
class ServerFixture : public ::testing::Test {
protected:
    void SetUp() override;

    HttpResult call(const QByteArray& method, const QString& path, const QJsonObject& body = {},
                    const QString& token = {});

    /// Opens the signaling socket of `device` and authenticates; the first push is the verdict.
    std::unique_ptr<Partner> connectSignaling(const Device& device);

    /// A new device, online, with session password "Password1" and pairing code "123456".
    std::unique_ptr<Partner> onlineDevice();

    HttpResult createSession(const Partner& master, const QString& targetId,
                             const QString& password);

    /// A connection to the relay that has sent the join frame of `sessionId`.
    std::unique_ptr<QTcpSocket> joinRelay(const QString& sessionId);

    DevServer m_server;
    QNetworkAccessManager m_network;
};

/// Runs the event loop until `holds` does; false when that takes 20 seconds.
bool waitUntil(const std::function<bool()>& holds);

QByteArray relayFrame(char channel, const QByteArray& payload);

} // namespace corvane::devserver
