#include "transport/P2PTransport.h"
#include "support/LogCapture.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>
#include <rtc/rtc.hpp>

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>

namespace corvane {
namespace {

using namespace std::chrono_literals;
using State = rtc::PeerConnection::State;
using namespace Qt::StringLiterals;

/// The transport between a test that looks at its signals and a scripted library. Callbacks come
/// from a thread of their own, as the library's do.
class P2PTransportTest : public ::testing::Test {
protected:
    static void onLibraryThread(const std::function<void()>& callback) {
        std::thread(callback).join();
    }
    static void settle() { QCoreApplication::sendPostedEvents(); }

    rtc::PeerConnection& library() { return *rtc::PeerConnection::latest; }

    void arrive(const char* label) {
        const auto channel = std::make_shared<rtc::DataChannel>(label);
        library().channels.push_back(channel);
        onLibraryThread([&] { library().channelArrived(channel); });
    }

    void startConnected(bool offerer = true) {
        transport->disconnect();
        connected.clear();
        if (offerer) {
            ASSERT_TRUE(transport->connect("ignored", 1));
        } else {
            transport->startAsAnswerer();
            arrive("control");
            arrive("video");
        }
        control = library().channels.at(0);
        video = library().channels.at(1);
        onLibraryThread([this] {
            control->becomeOpen();
            video->becomeOpen();
        });
        settle();
        ASSERT_EQ(connected.count(), 1);
    }

    bool send(ChannelType channel, const std::string& text) {
        return transport->send(channel, reinterpret_cast<const uint8_t*>(text.data()), text.size());
    }

    test::LogCapture log;
    std::unique_ptr<P2PTransport> transport = std::make_unique<P2PTransport>(nullptr, 50ms);
    QSignalSpy connected{transport.get(), &ITransport::connected};
    QSignalSpy disconnected{transport.get(), &ITransport::disconnected};
    QSignalSpy received{transport.get(), &ITransport::dataReceived};
    QSignalSpy errors{transport.get(), &ITransport::transportError};
    QSignalSpy descriptions{transport.get(), &IPeerTransport::localDescriptionReady};
    QSignalSpy candidates{transport.get(), &IPeerTransport::localCandidateReady};
    std::shared_ptr<rtc::DataChannel> control;
    std::shared_ptr<rtc::DataChannel> video;
};

TEST_F(P2PTransportTest, ConfiguresServersChannelsAndMessageSize) {
    transport->connect({}, 0);
    const auto& plain = library().settings;
    ASSERT_EQ(plain.iceServers.size(), 2u);
    EXPECT_TRUE(std::ranges::all_of(plain.iceServers, [](const auto& server) {
        return server.hostname.starts_with("stun:") && server.hostname.ends_with(":19302");
    }));
    EXPECT_EQ(plain.maxMessageSize, 16u * 1024 * 1024 + 24);
    ASSERT_EQ(library().channels.size(), 2u);
    const auto& reliable = library().channels[0]->settings;
    EXPECT_FALSE(reliable.unordered || reliable.maxRetransmits);
    const auto& lossy = library().channels[1]->settings;
    EXPECT_TRUE(lossy.unordered);
    EXPECT_EQ(lossy.maxRetransmits, 0u);

    P2PTransport relayed;
    relayed.setTurnPassword("secret");
    relayed.startAsAnswerer();
    ASSERT_EQ(library().settings.iceServers.size(), 3u);
    const auto& turn = library().settings.iceServers[2];
    EXPECT_EQ(turn.port, 5349);
    EXPECT_EQ(turn.username, "corvane");
    EXPECT_EQ(turn.password, "secret");
    EXPECT_EQ(turn.relayType, rtc::IceServer::RelayType::TurnTls);
    EXPECT_FALSE(log.contains("secret"));
}

TEST_F(P2PTransportTest, ConnectsOnceBothChannelsAreOpen) {
    for (const bool offerer : {true, false}) {
        transport->disconnect();
        connected.clear();
        if (offerer) {
            ASSERT_TRUE(transport->connect({}, 0));
        } else {
            transport->startAsAnswerer();
            for (const char* label : {"control", "intruder", "video"}) {
                arrive(label);
            }
        }
        control = library().channels.front();
        video = library().channels.back();
        EXPECT_FALSE(send(ChannelType::Video, "early"));
        for (const auto& [channel, after] : {std::pair{control, 0}, {video, 1}, {control, 1}}) {
            const auto before = connected.count();
            onLibraryThread([&, opening = channel] { opening->becomeOpen(); });
            EXPECT_EQ(connected.count(), before) << "on the library's thread";
            settle();
            EXPECT_EQ(connected.count(), after);
            EXPECT_EQ(transport->isConnected(), after == 1);
        }
    }
}

TEST_F(P2PTransportTest, PassesTheNegotiationOnInOrder) {
    transport->setRemoteDescription(u"v=0"_s, u"offer"_s);
    transport->addRemoteCandidate(u"c"_s, u"0"_s);
    transport->connect({}, 0);
    onLibraryThread([this] {
        library().described(rtc::Description("v=0", "offer"));
        library().candidateFound(rtc::Candidate("cand", "0"));
    });
    EXPECT_EQ(descriptions.count() + candidates.count(), 0) << "on the library's thread";
    settle();
    EXPECT_EQ(descriptions.value(0), (QVariantList{u"offer"_s, u"v=0"_s}));
    EXPECT_EQ(candidates.value(0), (QVariantList{u"cand"_s, u"0"_s}));
    transport->setRemoteDescription(u"garbage"_s, u"answer"_s);
    transport->addRemoteCandidate(u"garbage"_s, u"0"_s);
    transport->setRemoteDescription(u"v=1"_s, u"answer"_s);
    transport->addRemoteCandidate(u"far"_s, u"1"_s);
    EXPECT_EQ(library().told, (std::vector<std::string>{"answer v=1", "1 far"}));
}

TEST_F(P2PTransportTest, DeliversBinaryMessagesOnly) {
    for (const bool offerer : {true, false}) {
        received.clear();
        startConnected(offerer);
        onLibraryThread([this] {
            control->message(std::string("text"));
            video->message(std::string("text"));
            control->receive("abc");
            video->receive("pixels");
            control->receive({});
        });
        EXPECT_EQ(received.count(), 0) << "on the library's thread";
        settle();
        const auto message = [](ChannelType channel, const char* payload) {
            return QVariantList{QVariant::fromValue(channel), QByteArray(payload)};
        };
        EXPECT_EQ(received, (QList<QVariantList>{message(ChannelType::Control, "abc"),
                                                 message(ChannelType::Video, "pixels"),
                                                 message(ChannelType::Control, "")}));
    }
}

TEST_F(P2PTransportTest, SendsOnTheMatchingChannelAndReportsRefusals) {
    startConnected();
    EXPECT_TRUE(send(ChannelType::Control, "key"));
    EXPECT_TRUE(send(ChannelType::Video, "frame"));
    EXPECT_EQ(control->sent.at(0).size(), 3u);
    EXPECT_EQ(video->sent.at(0).size(), 5u);
    control->refusal = "Message size exceeds limit";
    EXPECT_FALSE(send(ChannelType::Control, "large"));
    EXPECT_TRUE(log.once("warning|P2PTransport::send failed: Message size exceeds limit"));
    video->open = false;
    EXPECT_FALSE(send(ChannelType::Video, "frame"));
}

TEST_F(P2PTransportTest, AQueueThatDoesNotDrainIsBounded) {
    startConnected();
    const struct {
        ChannelType type;
        rtc::DataChannel& channel;
        size_t bound;
    } cases[] = {{ChannelType::Video, *video, P2PTransport::kMaxVideoQueued},
                 {ChannelType::Control, *control, P2PTransport::kMaxControlQueued}};
    for (const auto& [type, channel, bound] : cases) {
        channel.buffered = bound - 1;
        EXPECT_TRUE(send(type, "x"));
        channel.buffered = bound;
        EXPECT_FALSE(send(type, "x"));
        EXPECT_EQ(channel.sent.size(), 1u);
        EXPECT_TRUE(log.contains(fmt::format("takes no data, {} bytes unsent", bound)));
    }
    EXPECT_EQ(transport->bytesQueued(),
              static_cast<qint64>(P2PTransport::kMaxVideoQueued + P2PTransport::kMaxControlQueued));
}

TEST_F(P2PTransportTest, WaitsForTheQueueWhileMessagesGoOnArriving) {
    startConnected();
    control->buffered = 1000;
    std::promise<void> delivered;
    QObject::connect(transport.get(), &ITransport::dataReceived, [&] { delivered.set_value(); });
    std::thread library([&] {
        control->receive("meanwhile");
        delivered.get_future().wait();
        control->buffered = 10;
        control->drained();
    });
    EXPECT_TRUE(transport->waitUntilQueued(100));
    library.join();
    EXPECT_LE(control->threshold, 100u);

    control->buffered = 1000;
    std::thread loss([this] { this->library().stateChanged(State::Failed); });
    EXPECT_FALSE(transport->waitUntilQueued(100)) << "the connection is gone";
    loss.join();
}

TEST_F(P2PTransportTest, AQueueThatMovesNothingIsTheLossOfTheConnection) {
    startConnected();
    EXPECT_FALSE(QTest::qWaitFor([this] { return !transport->isConnected(); }, 200));
    control->buffered = 1000;
    EXPECT_FALSE(transport->waitUntilQueued(100));
    EXPECT_TRUE(QTest::qWaitFor([this] { return disconnected.count() == 1; }));
    EXPECT_FALSE(transport->isConnected());
    EXPECT_TRUE(log.contains("warning|P2PTransport: nothing was sent for 50 ms"));
}

TEST_F(P2PTransportTest, LossCountsOnceAndOnlyWhenConnected) {
    ASSERT_TRUE(transport->connect({}, 0));
    onLibraryThread([this] { library().stateChanged(State::Failed); });
    settle();
    EXPECT_EQ(disconnected.count(), 0);
    startConnected();
    library().roundTrip = 7ms;
    EXPECT_EQ(transport->roundTripMilliseconds(), 7.0);
    onLibraryThread([this] {
        library().stateChanged(State::Disconnected);
        library().stateChanged(State::Closed);
        library().stateChanged(State::Closed);
        control->closed();
        video->closed();
    });
    settle();
    EXPECT_EQ(disconnected.count(), 1);
    EXPECT_FALSE(transport->isConnected());
    EXPECT_EQ(errors.count(), 0);
}

TEST_F(P2PTransportTest, NothingIsEmittedOnceItEnded) {
    for (const bool destroy : {false, true}) {
        startConnected();
        // As late as can be: the library still holds the callbacks of an object that is gone.
        const auto message = control->message;
        const auto stateChanged = library().stateChanged;
        onLibraryThread([&] { message(rtc::binary(3)); });
        destroy ? transport.reset() : transport->disconnect();
        EXPECT_EQ(rtc::PeerConnection::latest, nullptr);
        onLibraryThread([&] {
            message(rtc::binary(3));
            stateChanged(State::Closed);
        });
        settle();
        EXPECT_EQ(received.count() + disconnected.count(), 0);
        if (!destroy) {
            EXPECT_FALSE(transport->isConnected());
            EXPECT_FALSE(send(ChannelType::Control, "late"));
            EXPECT_EQ(transport->roundTripMilliseconds(), std::nullopt);
        }
    }
}

TEST_F(P2PTransportTest, AnAttemptThatCannotStartIsAnError) {
    rtc::PeerConnection::startRefusal = "no sockets left";
    EXPECT_FALSE(transport->connect({}, 0));
    rtc::PeerConnection::startRefusal.reset();
    ASSERT_EQ(errors.count(), 1);
    EXPECT_EQ(errors[0][0].toString(), u"no sockets left"_s);
    transport->setRemoteDescription(u"v=0"_s, u"answer"_s);
}

TEST_F(P2PTransportTest, APeerThatSendsTooFastIsHeldUpUntilTheMainThreadFollows) {
    startConnected();
    const rtc::binary message(P2PTransport::kMaxMessageSize);
    constexpr int kMessages = 6;
    std::atomic<int> taken = 0;
    std::thread library([&] {
        for (int i = 0; i < kMessages; ++i) {
            video->message(message);
            ++taken;
        }
    });
    while (taken < 3) {
        std::this_thread::yield();
    }
    EXPECT_EQ(received.count(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return received.count() == kMessages; }));
    library.join();

    std::thread stuck([&] {
        for (int i = 0; i < kMessages; ++i) {
            video->message(message);
        }
    });
    transport.reset();
    stuck.join();
}

} // namespace
} // namespace corvane
