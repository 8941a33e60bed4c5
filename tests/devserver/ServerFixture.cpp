#include "ServerFixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QNetworkReply>
#include <QTimer>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace corvane::devserver {

void Partner::send(const QJsonObject& message) {
    socket->sendTextMessage(QString::fromUtf8(compactJson(message)));
}

void ServerFixture::SetUp() {
    QString error;
    ASSERT_TRUE(m_server.start({.httpPort = 0, .relayPort = 0, .stunPort = 0}, &error))
        << qPrintable(error);
}

HttpResult ServerFixture::call(const QByteArray& method, const QString& path,
                               const QJsonObject& body, const QString& token) {
    QUrl url = m_server.url();
    url.setPath(path);
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    if (!token.isEmpty()) {
        request.setRawHeader("Authorization", "Bearer " + token.toUtf8());
    }
    const std::unique_ptr<QNetworkReply> reply(
        m_network.sendCustomRequest(request, method, compactJson(body)));
    EXPECT_TRUE(waitUntil([&] { return reply->isFinished(); }));
    return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll()};
}

std::unique_ptr<Partner> ServerFixture::connectSignaling(const Device& device) {
    auto partner = std::make_unique<Partner>(device);
    QObject::connect(partner->socket.get(), &QWebSocket::textMessageReceived,
                     [raw = partner.get()](const QString& text) {
                         raw->pushed.append(jsonObject(text.toUtf8()));
                     });
    QObject::connect(partner->socket.get(), &QWebSocket::connected, [raw = partner.get()] {
        raw->send({{u"type"_s, u"AUTH"_s}, {u"token"_s, raw->device.token}});
    });
    QUrl url = m_server.url();
    url.setScheme(u"ws"_s);
    url.setPath(u"/ws/clients/"_s + device.clientId);
    partner->socket->open(url);
    EXPECT_TRUE(waitUntil([&] { return !partner->pushed.isEmpty(); }));
    return partner;
}

std::unique_ptr<Partner> ServerFixture::onlineDevice() {
    auto partner = connectSignaling(m_server.registerDevice());
    partner->send({{u"type"_s, u"SET_PASSWORD"_s}, {u"password"_s, u"Password1"_s}});
    partner->send({{u"type"_s, u"SET_PAIRING_CODE"_s}, {u"code"_s, u"123456"_s}});
    EXPECT_TRUE(waitUntil(
        [&] { return m_server.signalingMessages(partner->device.clientId).size() == 3; }));
    partner->pushed.clear();
    return partner;
}

HttpResult ServerFixture::createSession(const Partner& master, const QString& targetId,
                                        const QString& password) {
    return call("POST", u"/sessions/create"_s,
                {{u"master_client_id"_s, master.device.clientId},
                 {u"target_client_id"_s, targetId},
                 {u"session_password"_s, password},
                 {u"purpose"_s, u"remote_desktop"_s},
                 {u"master_ecdh_public_key"_s, u"master-key"_s}},
                master.device.token);
}

std::unique_ptr<QTcpSocket> ServerFixture::joinRelay(const QString& sessionId) {
    auto socket = std::make_unique<QTcpSocket>();
    socket->connectToHost(m_server.address(), m_server.relayPort());
    socket->write(
        relayFrame(0, compactJson({{u"session_id"_s, sessionId}, {u"type"_s, u"relay_join"_s}})));
    return socket;
}

bool waitUntil(const std::function<bool()>& holds) {
    QTimer tick;
    tick.start(20);
    const QDeadlineTimer deadline(20'000);
    while (!holds()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

QByteArray relayFrame(char channel, const QByteArray& payload) {
    QByteArray frame(5, channel);
    qToBigEndian(static_cast<quint32>(payload.size()), frame.data() + 1);
    return frame + payload;
}

} // namespace corvane::devserver
