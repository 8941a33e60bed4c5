#include "ServerFixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

constexpr qint64 kMebibyte = 1024 * 1024;

class Relay : public ServerFixture {
protected:
    bool waitForPair(const QString& sessionId) {
        return waitUntil([&] { return m_server.relay().joinedPeers(sessionId) == 2; });
    }

    static bool arrived(QTcpSocket& socket, qint64 bytes) {
        return waitUntil([&] { return socket.bytesAvailable() >= bytes; });
    }

    static bool closed(QTcpSocket& socket) {
        return waitUntil([&] { return socket.state() == QAbstractSocket::UnconnectedState; });
    }

    /// Runs the event loop until the relay has forwarded nothing for a while.
    void waitForStandstill() {
        qint64 last = -1;
        QDeadlineTimer quiet;
        EXPECT_TRUE(waitUntil([&] {
            if (std::exchange(last, m_server.relay().bytesForwarded()) != last) {
                quiet.setRemainingTime(200);
            }
            return quiet.hasExpired();
        }));
    }
};

TEST_F(Relay, FramesReachThePartnerUnchangedAndNobodyElse) {
    const QByteArray early = relayFrame(1, QByteArray(100'000, 'e')) + relayFrame(0, {});
    const auto one = joinRelay(u"a"_s);
    one->write(early);
    const auto stranger = joinRelay(u"b"_s);
    const auto other = joinRelay(u"a"_s);
    ASSERT_TRUE(arrived(*other, early.size()));
    EXPECT_EQ(other->readAll(), early);

    const QByteArray frames = relayFrame(0, "input") + relayFrame(1, QByteArray(300'000, 'v'));
    for (qsizetype split : {1, 7, 12, 200'000}) {
        other->write(frames.left(split));
        other->flush();
        QCoreApplication::processEvents();
        other->write(frames.mid(split));
        ASSERT_TRUE(arrived(*one, frames.size()));
        EXPECT_EQ(one->readAll(), frames);
    }
    EXPECT_EQ(m_server.relay().bytesForwarded(), early.size() + 4 * frames.size());
    EXPECT_EQ(stranger->bytesAvailable(), 0);
}

TEST_F(Relay, AThirdPeerIsRefusedAndAPairEndsTogether) {
    const auto one = joinRelay(u"a"_s);
    const auto two = joinRelay(u"a"_s);
    ASSERT_TRUE(waitForPair(u"a"_s));
    const auto third = joinRelay(u"a"_s);
    EXPECT_TRUE(closed(*third));

    m_server.relay().inject(u"a"_s, "raw");
    ASSERT_TRUE(arrived(*one, 3));
    ASSERT_TRUE(arrived(*two, 3));
    const QByteArray farewell = relayFrame(0, "bye");
    one->readAll();
    two->readAll();
    one->write(farewell);
    one->disconnectFromHost();
    EXPECT_TRUE(closed(*two));
    EXPECT_EQ(two->readAll(), farewell);
    EXPECT_EQ(m_server.relay().joinedPeers(u"a"_s), 0);

    const auto back = joinRelay(u"a"_s);
    const auto again = joinRelay(u"a"_s);
    EXPECT_TRUE(waitForPair(u"a"_s));
}

TEST_F(Relay, WhatIsNoFrameEndsTheConnection) {
    const QByteArray join = compactJson({{u"session_id"_s, u"x"_s}, {u"type"_s, u"relay_join"_s}});
    const QList<QByteArray> firstFrames{
        relayFrame(1, join),          relayFrame(0, {}),
        relayFrame(0, "{}"),          relayFrame(0, "[\xff"),
        relayFrame(2, join),          QByteArray::fromHex("0001000001"),
        QByteArray("GET / HTTP/1.1"), relayFrame(0, QByteArray(5000, '{')),
    };
    for (const QByteArray& bytes : firstFrames) {
        QTcpSocket socket;
        socket.connectToHost(m_server.address(), m_server.relayPort());
        socket.write(bytes);
        EXPECT_TRUE(closed(socket)) << bytes.left(20).toHex().constData();
    }
    for (const char* header : {"0001000001", "0200000001", "ffffffffff"}) {
        const auto culprit = joinRelay(u"a"_s);
        const auto partner = joinRelay(u"a"_s);
        ASSERT_TRUE(waitForPair(u"a"_s));
        const QByteArray good = relayFrame(1, "good");
        culprit->write(good + QByteArray::fromHex(header));
        EXPECT_TRUE(closed(*culprit)) << header;
        EXPECT_TRUE(closed(*partner)) << header;
        EXPECT_EQ(partner->readAll(), good);
    }
    EXPECT_TRUE(waitUntil([&] { return m_server.relay().connections() == 0; }));
}

TEST_F(Relay, AStalledReaderSlowsTheSenderInsteadOfFillingMemory) {
    const auto sender = joinRelay(u"a"_s);
    const auto reader = joinRelay(u"a"_s);
    reader->setReadBufferSize(kMebibyte);
    ASSERT_TRUE(waitForPair(u"a"_s));
    const QByteArray frames =
        relayFrame(1, QByteArray("0123456789abcdef").repeated(kMebibyte)).repeated(3);
    sender->write(frames);
    waitForStandstill();
    EXPECT_LT(m_server.relay().bytesForwarded(), 20 * kMebibyte);
    EXPECT_GT(sender->bytesToWrite(), 20 * kMebibyte);

    const auto back = relayFrame(0, "still alive");
    reader->write(back);
    EXPECT_TRUE(arrived(*sender, back.size()));

    QByteArray received;
    EXPECT_TRUE(waitUntil([&] {
        received += reader->readAll();
        return received.size() >= frames.size();
    }));
    EXPECT_TRUE(received == frames);
}

TEST_F(Relay, CanStallDropAndRefuseOnDemand) {
    const auto one = joinRelay(u"a"_s);
    const auto two = joinRelay(u"a"_s);
    ASSERT_TRUE(waitForPair(u"a"_s));
    m_server.relay().stall();
    const QByteArray frame = relayFrame(1, QByteArray(100, 'f'));
    one->write(frame);
    waitForStandstill();
    EXPECT_EQ(m_server.relay().bytesForwarded(), 0);
    m_server.relay().resume();
    EXPECT_TRUE(arrived(*two, frame.size()));

    m_server.relay().refuseConnections();
    const auto refused = joinRelay(u"a"_s);
    EXPECT_TRUE(closed(*refused));
    EXPECT_EQ(refused->error(), QAbstractSocket::ConnectionRefusedError);
    EXPECT_EQ(m_server.relay().joinedPeers(u"a"_s), 2);
    m_server.relay().dropConnections();
    EXPECT_TRUE(closed(*one));
    EXPECT_TRUE(closed(*two));
    ASSERT_TRUE(m_server.relay().acceptConnections());
    const auto back = joinRelay(u"a"_s);
    EXPECT_TRUE(waitUntil([&] { return m_server.relay().joinedPeers(u"a"_s) == 1; }));
    EXPECT_EQ(m_server.relay().acceptedConnections(), 3);
}

} // namespace
} // namespace corvane::devserver
