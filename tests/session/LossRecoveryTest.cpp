#include "RecordingTransport.h"
#include "TestPlatform.h"
#include "common/ByteViews.h"
#include "media/FrameConverter.h"
#include "session/SessionDataPlane.h"
#include "support/DesktopScene.h"

#include <QTest>
#include <gtest/gtest.h>

#include <cstdlib>

namespace corvane::test {
namespace {

/// Carries messages straight to the other side, but for some video messages.
class LossyTransport : public RecordingTransport {
public:
    bool send(ChannelType channel, const uint8_t* data, size_t size) override {
        if (channel == ChannelType::Video) {
            const int number = videoMessages++;
            if (number >= firstLost && number <= lastLost) {
                return true;
            }
        }
        const QByteArray message = viewOf({data, size}).toByteArray();
        QMetaObject::invokeMethod(
            peer, [this, channel, message] { peer->receive(channel, message); },
            Qt::QueuedConnection);
        return true;
    }

    SessionDataPlane* peer = nullptr;
    int firstLost = 0, lastLost = -1;
    int videoMessages = 0;
};

/// Mean difference of the picture's luma from the scene's, of 255.
double difference(const DecodedFrame& picture, int step) {
    const ByteVector scene = desktopScene(picture.width, picture.height, step);
    ByteVector nv12 = allocateNV12(picture.width, picture.height);
    FrameConverter().convert(scene.data(), picture.width, picture.height, picture.width * 4,
                             nv12.data(), 0);
    double sum = 0;
    for (size_t i = 0; i < picture.yPlane.size(); ++i) {
        sum += std::abs(int(picture.yPlane[i]) - int(nv12[i]));
    }
    return sum / static_cast<double>(picture.yPlane.size());
}

TEST(LossRecoveryTest, APictureThatLostPacketsIsMadeWholeThoughTheScreenStandsStill) {
    constexpr int kFrames = 4;
    const std::tuple<const char*, int, int> cases[] = {
        {"the first picture", 0, 0},
        {"the last pictures", 2, kFrames - 1},
        {"the key frame asked for, too", 1, kFrames}};
    for (const auto& [what, first, last] : cases) {
        SCOPED_TRACE(what);
        LossyTransport toViewer, toTarget;
        const auto machine = std::make_shared<Machine>();
        machine->framesToShow = kFrames;
        SessionDataPlane target(SessionRole::Target, testCipher());
        SessionDataPlane viewer(SessionRole::Master, testCipher());
        toViewer.peer = &viewer;
        toTarget.peer = &target;
        toViewer.firstLost = first;
        toViewer.lastLost = last;
        std::shared_ptr<DecodedFrame> picture;
        QObject::connect(&viewer, &SessionDataPlane::frameDecoded,
                         [&](const std::shared_ptr<DecodedFrame>& frame) { picture = frame; });
        const auto platform = createTestPlatform(machine);
        for (auto [plane, transport] : {std::pair{&target, &toViewer}, {&viewer, &toTarget}}) {
            plane->setTransport(transport);
            plane->startStreaming({.captureFrameRate = 30}, platform);
            plane->setState(SessionState::Connected);
        }
        const auto isWhole = [&] {
            return picture && difference(*picture, kFrames - 1) < 8;
        };
        ASSERT_TRUE(QTest::qWaitFor([&] { return toViewer.videoMessages >= kFrames; }, 10'000));
        EXPECT_FALSE(isWhole());
        EXPECT_TRUE(QTest::qWaitFor(isWhole, 10'000));
    }
}

} // namespace
} // namespace corvane::test
