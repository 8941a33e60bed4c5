#include "transport/RelayTransport.h"
#include "ScriptedRelay.h"
#include "support/LogCapture.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace std::chrono_literals;
using test::frameBytes;
using namespace Qt::StringLiterals;

constexpr const char* kJoin = R"({"session_id":"s-1","type":"relay_join"})";
constexpr const char* kFirstAttempt = "info|RelayTransport: reconnecting in 10 ms (attempt 1/3)";
constexpr size_t kMaxPayload = 16'777'216;

class RelayTransportTest : public ::testing::Test {
protected:
    void SetUp() override { transport.setSessionId(u"s-1"_s); }

    bool connectToRelay() { return transport.connect("127.0.0.1", m_port); }

    /// Up and joined.
    void establish() {
        ASSERT_TRUE(connectToRelay());
        ASSERT_TRUE(relay.accept());
        ASSERT_EQ(relay.read(QByteArray(kJoin).size() + 5), frameBytes(0, kJoin));
        ASSERT_TRUE(waitFor(connected, 1));
    }

    bool send(ChannelType channel, const QByteArray& payload) {
        return transport.send(channel, reinterpret_cast<const uint8_t*>(payload.constData()),
                              static_cast<size_t>(payload.size()));
    }

    bool waitFor(const QSignalSpy& spy, int count) {
        return QTest::qWaitFor([&] { return spy.count() == count; }, 20'000);
    }

    QByteArray delivered(int index) const { return received[index][1].toByteArray(); }

    test::LogCapture log;
    test::ScriptedRelay relay;
    const uint16_t m_port = relay.port();
    RelayTransport transport{nullptr, 10ms, 50ms};
    QSignalSpy connected{&transport, &ITransport::connected};
    QSignalSpy disconnected{&transport, &ITransport::disconnected};
    QSignalSpy received{&transport, &ITransport::dataReceived};
    QSignalSpy errors{&transport, &ITransport::transportError};
};

TEST_F(RelayTransportTest, ARelayThatStopsReadingCostsBoundedMemory) {
    establish();
    const QByteArray payload(8 * 1024 * 1024, 'v');
    int accepted = 0;
    while (accepted < 20 && send(ChannelType::Video, payload)) {
        ++accepted;
    }
    EXPECT_EQ(accepted, 8);
    EXPECT_TRUE(log.contains("RelayTransport::send: relay takes no data, "));
    relay.read(accepted * (payload.size() + 5));
    EXPECT_TRUE(send(ChannelType::Video, payload));
}

TEST_F(RelayTransportTest, AWaitGivesUpWhereNothingMovesAndKeepsWhatArrivesInOrder) {
    EXPECT_FALSE(send(ChannelType::Control, "early"));
    establish();
    EXPECT_TRUE(transport.waitUntilQueued(0));
    constexpr int kFrames = 10'000; // more than is read at once
    QByteArray stream;
    QByteArray expected;
    for (int i = 0; i < kFrames; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(20, '.');
        stream += frameBytes(0, number);
        expected += number;
    }
    QByteArray order;
    std::optional<bool> drained;
    QObject::connect(&transport, &ITransport::dataReceived, &transport,
                     [&](ChannelType, const QByteArray& data) {
                         order += data;
                         if (!drained) {
                             drained = true;
                             send(ChannelType::Video, QByteArray(16'000'000, 'v'));
                             drained = transport.waitUntilQueued(0);
                         }
                     });
    relay.write(stream);
    ASSERT_TRUE(QTest::qWaitFor([&] { return order.size() >= expected.size(); }));
    EXPECT_TRUE(order == expected);
    EXPECT_EQ(drained, false) << "the relay does not read";

    transport.disconnect();
    EXPECT_FALSE(transport.waitUntilQueued(0));
    EXPECT_EQ(transport.roundTripMilliseconds(), std::nullopt);
}

TEST_F(RelayTransportTest, ConnectsOnceAndUnjoinedWithoutASessionId) {
    transport.setSessionId(QString());
    ASSERT_TRUE(connectToRelay());
    EXPECT_FALSE(connectToRelay()) << "while the first is under way";
    ASSERT_TRUE(relay.accept());
    ASSERT_TRUE(waitFor(connected, 1));
    EXPECT_FALSE(connectToRelay()) << "while connected";
    send(ChannelType::Control, "x");
    EXPECT_EQ(relay.read(6), frameBytes(0, "x"));
}

TEST_F(RelayTransportTest, TakesTheLargestPayloadBothWaysAndNotOneByteMore) {
    establish();
    const QByteArray largest(static_cast<qsizetype>(kMaxPayload), '\x5A');
    ASSERT_TRUE(send(ChannelType::Video, largest));
    const QByteArray frame = relay.read(static_cast<qint64>(kMaxPayload) + 5);
    EXPECT_TRUE(frame == frameBytes(1, largest));

    relay.write(frame);
    ASSERT_TRUE(waitFor(received, 1));
    EXPECT_TRUE(delivered(0) == largest);

    EXPECT_FALSE(send(ChannelType::Video, largest + 'x'));
    EXPECT_EQ(relay.unread(), 0);
}

TEST_F(RelayTransportTest, RefusedHeaderIsReportedAtOnceAndTheLinkGoesOn) {
    const std::pair<QByteArray, const char*> cases[] = {
        {frameBytes(2, 0), "Invalid channel type in frame header"},
        {frameBytes(1, 16'777'217), "Frame payload exceeds maximum size"},
        {frameBytes(0, 0xFFFFFFFF), "Frame payload exceeds maximum size"},
    };
    establish();
    for (const auto& [header, error] : cases) {
        errors.clear();
        received.clear();
        relay.write(header + frameBytes(0, "dropped"));
        ASSERT_TRUE(waitFor(errors, 1));
        EXPECT_EQ(errors[0][0].toString(), QLatin1String(error));
        relay.write(frameBytes(1, "next") + frameBytes(0, {}));
        ASSERT_TRUE(waitFor(received, 2));
        EXPECT_EQ(received[0][0].value<ChannelType>(), ChannelType::Video);
        EXPECT_EQ(delivered(0), "next");
        EXPECT_EQ(received[1][0].value<ChannelType>(), ChannelType::Control);
    }
    EXPECT_TRUE(transport.isConnected());
}

TEST_F(RelayTransportTest, HandlerThatEndsTheConnectionSeesNoFurtherFrame) {
    establish();
    QObject::connect(&transport, &ITransport::dataReceived, &transport,
                     [this] { transport.disconnect(); });
    relay.write(frameBytes(0, "last") + frameBytes(0, "never") + frameBytes(9, "never"));
    ASSERT_TRUE(waitFor(disconnected, 1));
    EXPECT_EQ(received.count(), 1);
    EXPECT_EQ(errors.count(), 0);
}

TEST_F(RelayTransportTest, DroppedLinkIsNoErrorAndJoinsAgain) {
    establish();
    relay.write(frameBytes(1, "half a frame").left(9));
    for (int round = 1; round <= 5; ++round) {
        relay.drop();
        ASSERT_TRUE(relay.accept());
        EXPECT_EQ(relay.read(45), frameBytes(0, kJoin)) << "round " << round;
        EXPECT_EQ(log.count(kFirstAttempt), round);
    }
    relay.write(frameBytes(0, "fresh"));
    ASSERT_TRUE(waitFor(received, 1));
    EXPECT_EQ(delivered(0), "fresh");
    EXPECT_EQ(errors.count(), 0);
    EXPECT_EQ(disconnected.count(), 5);
}

TEST_F(RelayTransportTest, GivesUpAfterThreeFailedAttemptsUntilAskedAgain) {
    relay.refuse();
    for (int round = 1; round <= 2; ++round) {
        ASSERT_TRUE(connectToRelay());
        ASSERT_TRUE(waitFor(errors, 4 * round));
        for (const char* when :
             {"10 ms (attempt 1/3)", "20 ms (attempt 2/3)", "40 ms (attempt 3/3)"}) {
            EXPECT_EQ(log.count(fmt::format("info|RelayTransport: reconnecting in {}", when)),
                      round);
        }
    }
    EXPECT_FALSE(log.contains("attempt 4"));
    EXPECT_EQ(errors[0][0].toString(), u"Connection refused"_s);
    EXPECT_EQ(disconnected.count(), 0);
}

TEST_F(RelayTransportTest, SuccessRestoresTheThreeAttemptsAndDisconnectEndsThem) {
    establish();
    relay.refuse();
    relay.drop();
    ASSERT_TRUE(waitFor(errors, 2));
    relay.listenAgain(m_port);
    ASSERT_TRUE(relay.accept());
    ASSERT_TRUE(waitFor(connected, 2));
    relay.drop();
    ASSERT_TRUE(QTest::qWaitFor([this] { return log.count(kFirstAttempt) == 2; }));
    transport.disconnect();
    EXPECT_FALSE(QTest::qWaitFor([this] { return relay.hasVisitor(); }, 60));
}

TEST_F(RelayTransportTest, DisconnectFromInsideTheReportOfADropIsFinal) {
    establish();
    QObject::connect(&transport, &ITransport::disconnected, &transport,
                     [this] { transport.disconnect(); });
    relay.drop();
    ASSERT_TRUE(waitFor(disconnected, 1));
    EXPECT_FALSE(log.contains("reconnecting in"));
}

} // namespace
} // namespace corvane
