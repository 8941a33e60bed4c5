#include "session/ViewerStream.h"
#include "media/AV1Encoder.h"
#include "media/FrameConverter.h"
#include "media/IVideoDecoder.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <mutex>
#include <semaphore>
#include <thread>

namespace corvane::test {
namespace {

using namespace std::chrono_literals;

constexpr int kKeyframe = 1000;

/// What the test shares with its decoder, which may outlive it.
struct Bench {
    std::counting_semaphore<> allowed{0}; ///< packets that may be finished
    std::atomic<bool> open = false;
    std::atomic<bool> destroyed = false;

    void begin(int packet) {
        const std::lock_guard lock(m_mutex);
        m_begun.push_back(packet);
    }
    std::vector<int> begun() {
        const std::lock_guard lock(m_mutex);
        return m_begun;
    }
    /// Without the event loop, as a busy main thread would.
    bool waitUntilBegun(size_t packets) {
        for (int i = 0; i < 5000 && begun().size() < packets; ++i) {
            std::this_thread::sleep_for(2ms);
        }
        return begun().size() == packets;
    }

private:
    std::mutex m_mutex;
    std::vector<int> m_begun;
};

/// Takes as long as the test wants. A packet of one byte yields a picture of that width.
class SlowDecoder : public IVideoDecoder {
public:
    explicit SlowDecoder(std::shared_ptr<Bench> bench) : m_bench(std::move(bench)) {}
    ~SlowDecoder() override { m_bench->destroyed = true; }

    bool initialize(int, int) override { return m_bench->open = true; }
    void shutdown() override { m_bench->open = false; }
    bool isInitialized() const override { return m_bench->open; }
    std::unique_ptr<DecodedFrame> decode(const uint8_t* data, size_t size, uint64_t) override {
        auto frame = std::make_unique<DecodedFrame>();
        frame->width = size == 1 ? *data : kKeyframe;
        m_bench->begin(frame->width);
        m_bench->allowed.acquire();
        return frame;
    }

private:
    const std::shared_ptr<Bench> m_bench;
};

ByteVector keyframePacket() {
    constexpr int kSize = 64;
    AV1Encoder encoder;
    EXPECT_TRUE(encoder.initialize({.width = kSize, .height = kSize, .profile = {}}));
    ByteVector nv12 = allocateNV12(kSize, kSize);
    std::fill(nv12.begin(), nv12.end(), uint8_t{128});
    return encoder.encode(nv12.data(), kSize, kSize, 0, true)->data;
}

class ViewerStreamTest : public ::testing::Test {
protected:
    ~ViewerStreamTest() override { m_bench->allowed.release(1000); }

    void start(DecodeQueue::Limits limits = {}, std::chrono::milliseconds endLimit = 10s) {
        m_stream = std::make_unique<ViewerStream>(std::make_unique<SlowDecoder>(m_bench), limits,
                                                  endLimit);
        QObject::connect(m_stream.get(), &ViewerStream::keyframeNeeded, [this] { ++m_requests; });
        QObject::connect(m_stream.get(), &ViewerStream::pictureOvertaken,
                         [this] { ++m_overtaken; });
        QObject::connect(m_stream.get(), &ViewerStream::packetDropped, [this] { ++m_dropped; });
        QObject::connect(m_stream.get(), &ViewerStream::pictureDecoded,
                         [this](const auto& picture) { m_pictures.push_back(picture->width); });
    }

    void receive(std::initializer_list<int> packets) {
        static const ByteVector keyframe = keyframePacket();
        for (const int packet : packets) {
            m_stream->onMessage(m_counter);
            m_stream->receive(m_counter++, packet == kKeyframe
                                               ? keyframe
                                               : ByteVector{static_cast<uint8_t>(packet)});
        }
    }

    LogCapture m_log;
    const std::shared_ptr<Bench> m_bench = std::make_shared<Bench>();
    std::unique_ptr<ViewerStream> m_stream;
    uint64_t m_counter = 0;
    int m_requests = 0, m_overtaken = 0, m_dropped = 0;
    std::vector<int> m_pictures;
};

using Numbers = std::vector<int>;

TEST_F(ViewerStreamTest, DecodesEverythingInOrderButOnlyTheNewestPictureWaits) {
    start();
    receive({kKeyframe, 1, 2, 3, 4, 5}); // returns although the decoder is inside the first one
    m_bench->allowed.release(5);
    ASSERT_TRUE(m_bench->waitUntilBegun(6));
    EXPECT_EQ(m_bench->begun(), (Numbers{kKeyframe, 1, 2, 3, 4, 5}));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_pictures, Numbers{4});
    EXPECT_EQ(m_overtaken, 4);
    m_bench->allowed.release();
    EXPECT_TRUE(eventually([this] { return m_pictures == Numbers{4, 5}; }));
    EXPECT_EQ(m_overtaken, 4);
    EXPECT_EQ(m_dropped + m_requests, 0);
}

TEST_F(ViewerStreamTest, AQueueThatOverflowsIsEmptiedAndStartsAfreshWithAKeyFrame) {
    for (const auto limits :
         {DecodeQueue::Limits{.packets = 4}, DecodeQueue::Limits{.packets = 100, .bytes = 4}}) {
        SCOPED_TRACE(limits.packets);
        m_requests = m_dropped = m_overtaken = 0;
        m_pictures.clear();
        const size_t before = m_bench->begun().size();
        start(limits);
        receive({kKeyframe});
        ASSERT_TRUE(m_bench->waitUntilBegun(before + 1));
        receive({1, 2, 3, 4});
        EXPECT_EQ(m_requests + m_dropped, 0);
        receive({5, 6, 7});
        EXPECT_EQ(m_requests, 1);
        EXPECT_EQ(m_dropped, 7);

        // The key frame from before repairs nothing, even if its picture comes only now.
        m_bench->allowed.release();
        EXPECT_TRUE(eventually([this] { return m_requests == 2; }));
        receive({kKeyframe});
        ASSERT_TRUE(m_bench->waitUntilBegun(before + 2));
        receive({8, 9, 10, 11});
        EXPECT_FALSE(eventually([this] { return m_requests > 2; }, 700));

        receive({kKeyframe}); // there is no room, but it needs nothing of what waits
        m_bench->allowed.release(2);
        EXPECT_TRUE(eventually(
            [this] { return m_pictures.size() + static_cast<size_t>(m_overtaken) == 3; }));
        const Numbers begun = m_bench->begun();
        EXPECT_EQ(Numbers(begun.end() - 3, begun.end()), Numbers(3, kKeyframe));
        EXPECT_EQ(m_requests, 2);
        EXPECT_EQ(m_dropped, 11);
    }
}

TEST_F(ViewerStreamTest, StoppingWaitsForNobodyAndNothingIsEmittedAfterwards) {
    start({}, 20ms);
    receive({kKeyframe, 1, 2});
    m_bench->allowed.release();
    ASSERT_TRUE(m_bench->waitUntilBegun(2)); // one picture waits, one is being decoded
    m_stream->stop();
    receive({kKeyframe});
    QCoreApplication::processEvents();
    m_stream.reset();
    EXPECT_TRUE(m_log.once("warning|The decoder did not finish its packet within 20 ms -- leaving "
                           "its thread behind"));
    EXPECT_FALSE(m_bench->destroyed);
    m_bench->allowed.release(10);
    EXPECT_TRUE(eventually([this] { return m_bench->destroyed.load(); }));
    EXPECT_FALSE(m_bench->open);
    EXPECT_EQ(m_bench->begun(), (Numbers{kKeyframe, 1}));
    EXPECT_TRUE(m_pictures.empty());
    EXPECT_EQ(m_overtaken + m_dropped + m_requests, 0);
}

} // namespace
} // namespace corvane::test
