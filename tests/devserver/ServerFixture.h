#pragma once

#include "devserver/DevServer.h"
#include "support/Eventually.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QWebSocket>
#include <gtest/gtest.h>

#include <memory>

namespace corvane::devserver {

using namespace Qt::StringLiterals;
using test::eventually;

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
    void SetUp() override {
        QString error;
        ASSERT_TRUE(m_server.start({.httpPort = 0, .relayPort = 0, .stunPort = 0}, &error))
            << qPrintable(error);
    }

    HttpResult call(const QByteArray& method, const QString& path, const QByteArray& body = "{}",
                    const QString& token = {}) {
        QNetworkRequest request(m_server.url().resolved(QUrl(path)));
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
        if (!token.isEmpty()) {
            request.setRawHeader("Authorization", "Bearer " + token.toUtf8());
        }
        const std::unique_ptr<QNetworkReply> reply(
            m_network.sendCustomRequest(request, method, body));
        EXPECT_TRUE(eventually([&] { return reply->isFinished(); }));
        return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(),
                reply->readAll()};
    }

    /// Opens the signaling socket of `device` and authenticates; the first push is the verdict.
    std::unique_ptr<Partner> connectSignaling(const Device& device) {
        auto partner = std::make_unique<Partner>(device);
        QWebSocket* socket = partner->socket.get();
        QObject::connect(socket, &QWebSocket::textMessageReceived,
                         [raw = partner.get()](const QString& text) { raw->pushed.append(text); });
        QObject::connect(socket, &QWebSocket::connected, [raw = partner.get()] {
            raw->send(uR"({"type":"AUTH","token":"%1"})"_s.arg(raw->device.token));
        });
        QUrl url = m_server.url();
        url.setScheme(u"ws"_s);
        url.setPath(u"/ws/clients/"_s + device.clientId);
        socket->open(url);
        EXPECT_TRUE(eventually([&] { return !partner->pushed.isEmpty(); }));
        return partner;
    }

    /// A new device, online, with session password "Password1" and pairing code "123456".
    std::unique_ptr<Partner> onlineDevice() {
        auto partner = connectSignaling(m_server.registerDevice());
        partner->send(uR"({"type":"SET_PASSWORD","password":"Password1"})"_s);
        partner->send(uR"({"type":"SET_PAIRING_CODE","code":"123456"})"_s);
        EXPECT_TRUE(eventually(
            [&] { return m_server.signalingMessages(partner->device.clientId).size() == 3; }));
        partner->pushed.clear();
        return partner;
    }

    HttpResult createSession(const Partner& master, const QString& targetId,
                             const QString& password = u"Password1"_s) {
        const QJsonObject body{{u"master_client_id"_s, master.device.clientId},
                               {u"target_client_id"_s, targetId},
                               {u"session_password"_s, password},
                               {u"purpose"_s, u"remote_desktop"_s},
                               {u"master_ecdh_public_key"_s, u"key"_s}};
        return call("POST", u"/sessions/create"_s, compactJson(body), master.device.token);
    }

    DevServer m_server;
    QNetworkAccessManager m_network;
};

} // namespace corvane::devserver
