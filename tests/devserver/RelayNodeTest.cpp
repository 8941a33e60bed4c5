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

    static bool arrived(QTcpSocket& socket, qint64 bytes) {
        return eventually([&] { return socket.bytesAvailable() >= bytes; });
    }

    static bool closed(QTcpSocket& socket) {
        return eventually([&] { return socket.state() == QAbstractSocket::UnconnectedState; });
    }
};

TEST_F(RelayNodeTest, FramesReachThePartnerUnchangedAndNobodyElse) {
    const QByteArray early = relayFrame(1, QByteArray(100'000, 'e')) + relayFrame(0, {});
    const auto one = join();
    one->write(early);
    const auto stranger = join("b");
    const auto other = join();
    ASSERT_TRUE(arrived(*other, early.size()));
    EXPECT_EQ(other->readAll(), early);

    const QByteArray frames = relayFrame(0, "input") + relayFrame(1, QByteArray(300'000, 'v'));
    for (const qsizetype split : {1, 7, 12, 200'000}) {
        other->write(frames.left(split));
        other->flush();
        QCoreApplication::processEvents();
        other->write(frames.mid(split));
        ASSERT_TRUE(arrived(*one, frames.size()));
        EXPECT_EQ(one->readAll(), frames);
    }
    EXPECT_EQ(stranger->bytesAvailable(), 0);
}

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
    for (const char* header : {"0001000001", "0200000001", "ffffffffff"}) {
        const auto culprit = join();
        const auto partner = join();
        ASSERT_TRUE(isPaired());
        const QByteArray good = relayFrame(1, "good");
        culprit->write(good + QByteArray::fromHex(header));
        EXPECT_TRUE(closed(*culprit)) << header;
        EXPECT_TRUE(closed(*partner)) << header;
        EXPECT_EQ(partner->readAll(), good);
    }
    EXPECT_TRUE(eventually([&] { return m_server.relay().connections() == 0; }));
}

TEST_F(RelayNodeTest, AStalledReaderSlowsTheSenderInsteadOfFillingMemory) {
    const auto sender = join();
    const auto reader = join();
    reader->setReadBufferSize(1'000'000);
    ASSERT_TRUE(isPaired());
    const QByteArray frames =
        relayFrame(1, QByteArray("0123456789abcdef").repeated(1'000'000)).repeated(3);
    sender->write(frames);
    EXPECT_FALSE(eventually([&] { return m_server.relay().bytesForwarded() >= 20'000'000; }, 500));

    const auto back = relayFrame(0, "still alive");
    reader->write(back);
    EXPECT_TRUE(arrived(*sender, back.size()));
    QByteArray received;
    EXPECT_TRUE(eventually([&] {
        received += reader->readAll();
        return received.size() >= frames.size();
    }));
    EXPECT_TRUE(received == frames);
}

} // namespace
} // namespace corvane::devserver
