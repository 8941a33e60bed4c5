#include "ServerFixture.h"

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

using Signaling = ServerFixture;

TEST_F(Signaling, OnlyADevicesOwnTokenBringsItOnline) {
    const Device device = m_server.registerDevice();
    Device thief = m_server.registerDevice();
    thief.clientId = device.clientId;
    const auto refused = connectSignaling(thief);
    EXPECT_EQ(refused->pushed[0]["type"_L1], u"AUTH_FAIL"_s);
    EXPECT_FALSE(m_server.isOnline(device.clientId));

    const auto first = connectSignaling(device);
    EXPECT_EQ(first->pushed[0]["type"_L1], u"AUTH_OK"_s);
    const auto second = connectSignaling(device);
    EXPECT_TRUE(
        waitUntil([&] { return first->socket->state() == QAbstractSocket::UnconnectedState; }));
    EXPECT_TRUE(m_server.isOnline(device.clientId));
    m_server.pushText(device.clientId, u"{\"type\":\"HELLO\"}"_s);
    EXPECT_TRUE(waitUntil([&] { return second->pushed.size() == 2; }));

    m_server.dropSignaling(device.clientId);
    EXPECT_TRUE(
        waitUntil([&] { return second->socket->state() == QAbstractSocket::UnconnectedState; }));
    EXPECT_FALSE(m_server.isOnline(device.clientId));
}

TEST_F(Signaling, IceMessagesPassBetweenTheTwoSidesOfTheirSessionOnly) {
    const auto master = onlineDevice();
    const auto target = onlineDevice();
    const auto stranger = onlineDevice();
    const QString id = createSession(*master, target->device.clientId, u"Password1"_s)
                           .json()["session_id"_L1]
                           .toString();
    ASSERT_TRUE(waitUntil([&] { return target->pushed.size() == 1; }));
    target->pushed.clear();

    const auto message = [&](const QString& type, const QString& session, const Partner& to) {
        return QJsonObject{{u"type"_s, type},
                           {u"session_id"_s, session},
                           {u"target_client_id"_s, to.device.clientId},
                           {u"sdp"_s, u"v=0"_s},
                           {u"candidate"_s, u"c"_s},
                           {u"mid"_s, u"0"_s}};
    };
    stranger->send(message(u"ICE_OFFER"_s, id, *target));
    master->send(message(u"ICE_OFFER"_s, id, *stranger));
    master->send(message(u"ICE_OFFER"_s, u"other"_s, *target));
    master->send(message(u"SESSION_AUTO_ACCEPT"_s, id, *target));
    master->socket->sendTextMessage(u"[broken"_s);
    master->send({{u"type"_s, 7}, {u"session_id"_s, QJsonObject{}}});
    master->send(message(u"ICE_OFFER"_s, id, *target));
    master->send(message(u"ICE_CANDIDATE"_s, id, *target));
    target->send(message(u"ICE_ANSWER"_s, id, *master));

    ASSERT_TRUE(
        waitUntil([&] { return target->pushed.size() == 2 && master->pushed.size() == 1; }));
    const auto forwarded = [&](const QString& type, const Partner& from) {
        return QJsonObject{
            {u"type"_s, type}, {u"session_id"_s, id}, {u"from_client_id"_s, from.device.clientId}};
    };
    QJsonObject offer = forwarded(u"ICE_OFFER"_s, *master);
    QJsonObject candidate = forwarded(u"ICE_CANDIDATE"_s, *master);
    QJsonObject answer = forwarded(u"ICE_ANSWER"_s, *target);
    offer.insert(u"sdp"_s, u"v=0"_s);
    answer.insert(u"sdp"_s, u"v=0"_s);
    candidate.insert(u"candidate"_s, u"c"_s);
    candidate.insert(u"mid"_s, u"0"_s);
    EXPECT_EQ(target->pushed, (QList<QJsonObject>{offer, candidate}));
    EXPECT_EQ(master->pushed, QList<QJsonObject>{answer});
    EXPECT_TRUE(stranger->pushed.isEmpty());
}

} // namespace
} // namespace corvane::devserver
