#include "ServerFixture.h"

#include <QTcpSocket>
#include <QtEndian>

namespace corvane::devserver {
namespace {

QByteArray relayFrame(char channel, const QByteArray& payload) {
    QByteArray frame(5, channel);
    qToBigEndian(static_cast<quint32>(payload.size()), frame.data() + 1);
    return frame + payload;
}

class RelayNodeTest : public ServerFixture {
protected:
    /// A connection to the relay that has sent `bytes`.
    std::unique_ptr<QTcpSocket> connectRelay(const QByteArray& bytes) {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(m_server.address(), m_server.relayPort());
        socket->write(bytes);
        return socket;
    }

    std::unique_ptr<QTcpSocket> join(const QByteArray& sessionId = "a") {
        return connectRelay(
            relayFrame(0, R"({"session_id":")" + sessionId + R"(","type":"relay_join"})"));
    }

    bool isPaired() {
        return eventually([&] { return m_server.relay().joinedPeers(u"a"_s) == 2; });
    }

    static bool closed(QTcpSocket& socket) {
        return eventually([&] { return socket.state() == QAbstractSocket::UnconnectedState; });
    }
};

TEST_F(RelayNodeTest, AThirdPeerIsRefusedAndAPairEndsTogether) {
    const auto one = join();
    const auto two = join();
    ASSERT_TRUE(isPaired());
    EXPECT_TRUE(closed(*join()));

    const QByteArray farewell = relayFrame(0, "bye");
    one->write(farewell);
    one->disconnectFromHost();
    EXPECT_TRUE(closed(*two));
    EXPECT_EQ(two->readAll(), farewell);
    const auto back = join();
    const auto again = join();
    EXPECT_TRUE(isPaired());
}

TEST_F(RelayNodeTest, WhatIsNoFrameEndsTheConnection) {
    const QByteArray joining = R"({"session_id":"x","type":"relay_join"})";
    for (const QByteArray& bytes :
         {relayFrame(1, joining), relayFrame(0, {}), relayFrame(0, "{}"), relayFrame(0, "[\xff"),
          relayFrame(2, joining), QByteArray::fromHex("0001000001"), QByteArray("GET / HTTP/1.1"),
          relayFrame(0, QByteArray(5000, '{'))}) {
        EXPECT_TRUE(closed(*connectRelay(bytes))) << bytes.left(20).toHex().constData();
    }
    EXPECT_TRUE(eventually([&] { return m_server.relay().connections() == 0; }));
}

} // namespace
} // namespace corvane::devserver
