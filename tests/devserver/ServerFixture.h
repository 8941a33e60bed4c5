#pragma once

#include "DevServer.h"

#include <QNetworkAccessManager>
#include <QTest>
#include <QWebSocket>
#include <gtest/gtest.h>

#include <memory>

namespace corvane::devserver {

/// Runs the event loop until `holds` does; false when that takes 20 seconds.
template <typename Condition>
bool waitUntil(Condition holds) {
    return QTest::qWaitFor(holds, 20'000);
}

/// What came back from a request; status 0 when nothing did.
struct HttpResult {
    int status = 0;
    QByteArray body;

    QString field(const char* name) const {
        return jsonObject(body)[QLatin1String(name)].toString();
    }
};

/// A device's signaling socket and the messages pushed to it.
struct Partner {
    Device device;
    std::unique_ptr<QWebSocket> socket = std::make_unique<QWebSocket>();
    QStringList pushed = {};

    void send(const QString& message) { socket->sendTextMessage(message); }
    bool isClosed() const { return socket->state() == QAbstractSocket::UnconnectedState; }
};

/// A server on free ports, with blocking helpers.
class ServerFixture : public ::testing::Test {
protected:
    void SetUp() override;

    HttpResult call(const QByteArray& method, const QString& path, const QByteArray& body = "{}",
                    const QString& token = {});

    /// Opens the signaling socket of `device` and authenticates; the first push is the verdict.
    std::unique_ptr<Partner> connectSignaling(const Device& device);

    /// A new device, online, with session password "Password1" and pairing code "123456".
    std::unique_ptr<Partner> onlineDevice();

    HttpResult createSession(const Partner& master, const QString& targetId,
                             const QString& password = QStringLiteral("Password1"));

    DevServer m_server;
    QNetworkAccessManager m_network;
};

} // namespace corvane::devserver
