#include "session/FramePipeline.h"
#include "crypto/AesGcmCipher.h"
#include "session/StreamLevel.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

namespace corvane::test {
namespace {

/// Answers every frame with a packet, unless told to fail.
class ScriptedEncoder : public IVideoEncoder {
public:
    bool initialize(const EncoderConfig& wanted) override {
        ++openings;
        config = wanted;
        return open = opens;
    }
    void shutdown() override { open = false; }
    std::unique_ptr<EncodedPacket> encode(const uint8_t*, int, int, uint64_t,
                                          bool forceKeyframe) override {
        forcedKeyframe = forceKeyframe;
        if (holdsBack) {
            return nullptr;
        }
        auto packet = std::make_unique<EncodedPacket>();
        packet->data = {1, 2, ++packets};
        packet->isKeyframe = forceKeyframe;
        return packet;
    }
    bool isInitialized() const override { return open; }
    void updateBitrate(int) override {}
    void setQuality(int cqLevel) override { quality = cqLevel; }
    std::pair<int32_t, int32_t> configuredSize() const override {
        return {config.width, config.height};
    }

    bool opens = true;
    bool holdsBack = false;
    bool open = false;
    int openings = 0;
    int quality = -1;
    EncoderConfig config;
    bool forcedKeyframe = false;
    uint8_t packets = 0;
};

CapturedFrame frame(int width, int height) {
    CapturedFrame result;
    result.width = width;
    result.height = height;
    result.stride = width * 4;
    result.data.assign(static_cast<size_t>(result.stride) * static_cast<size_t>(height), 0x40);
    return result;
}

class FramePipelineTest : public ::testing::Test {
protected:
    LogCapture m_log;
    AesGcmCipher m_cipher{ByteVector(32, 1), ByteVector(12, 2)};
    std::unique_ptr<ScriptedEncoder> m_encoder = std::make_unique<ScriptedEncoder>();
    ScriptedEncoder& m_script = *m_encoder;
    FramePipeline m_pipeline{
        {.captureFrameRate = 24, .encoderQuality = 23, .encoderSpeed = "8", .monitorIndex = 0},
        m_cipher,
        std::move(m_encoder)};
};

TEST_F(FramePipelineTest, SealsTheBarePacket) {
    CapturedFrame first = frame(64, 48);
    first.keyframeRequested = true;
    const auto sealed = m_pipeline.process(first);
    ASSERT_TRUE(sealed.has_value());
    EXPECT_EQ(m_cipher.decrypt(sealed->data(), sealed->size()), (ByteVector{1, 2, 1}));
    EXPECT_TRUE(m_script.forcedKeyframe);
    EXPECT_EQ(m_script.config.width, 64);
    EXPECT_EQ(m_script.config.fps, 24);
    EXPECT_EQ(m_script.config.cqLevel, 23);
    EXPECT_EQ(m_script.config.keyframeInterval, 60);
}

TEST_F(FramePipelineTest, SendsAKeyFrameAgainWhileItsPictureStands) {
    CapturedFrame still = frame(64, 48);
    CapturedFrame changed = frame(64, 48);
    changed.data.front() = 0xff;
    CapturedFrame larger = frame(96, 48);
    const struct {
        CapturedFrame& frame;
        bool keyframeRequested;
        uint8_t packet;
    } steps[] = {{still, true, 1},    {still, true, 1},   {changed, true, 2}, {changed, true, 2},
                 {changed, false, 3}, {changed, true, 4}, {larger, true, 5},  {changed, true, 6}};
    uint64_t counter = 0;
    for (const auto& step : steps) {
        step.frame.keyframeRequested = step.keyframeRequested;
        const auto sealed = m_pipeline.process(step.frame);
        ASSERT_TRUE(sealed);
        EXPECT_EQ(m_cipher.decrypt(sealed->data(), sealed->size()).back(), step.packet) << counter;
        EXPECT_EQ(sealed->front(), counter++) << "a message sealed as before";
    }
    EXPECT_EQ(m_script.openings, 3) << "once per size";
}

TEST_F(FramePipelineTest, SharpensAStillPictureAndGivesUpQualityThenSizeOnAStrainedLine) {
    CapturedFrame picture = frame(64, 48);
    const auto qualityAfter = [&](int refinement) {
        picture.refinement = refinement;
        EXPECT_TRUE(m_pipeline.process(picture));
        return m_script.quality;
    };
    const int sharp = qualityAfter(0);
    EXPECT_EQ(sharp, 23);
    EXPECT_LT(qualityAfter(2), sharp);
    EXPECT_LT(qualityAfter(4), qualityAfter(2));

    m_pipeline.setLevel(1);
    EXPECT_GT(qualityAfter(0), sharp);
    EXPECT_EQ(m_script.config.width, 64);
    m_pipeline.setLevel(kMaxStreamLevel);
    qualityAfter(0);
    EXPECT_EQ(std::pair(m_script.config.width, m_script.config.height), std::pair(32, 24));
    m_pipeline.setLevel(0);
    EXPECT_EQ(qualityAfter(0), sharp);
    EXPECT_EQ(m_script.config.width, 64);
}

TEST_F(FramePipelineTest, RetriesAFailedOpeningWithTheNextFrame) {
    m_script.opens = false;
    EXPECT_FALSE(m_pipeline.process(frame(64, 48)).has_value());
    EXPECT_TRUE(m_log.once("error|Failed to initialize AV1 encoder (64x48)"));
    m_script.opens = true;
    EXPECT_TRUE(m_pipeline.process(frame(64, 48)).has_value());
    m_script.holdsBack = true;
    EXPECT_FALSE(m_pipeline.process(frame(64, 48)).has_value());
}

TEST_F(FramePipelineTest, RefusesFramesThatDoNotHoldWhatTheySay) {
    CapturedFrame cut = frame(64, 48);
    cut.data.pop_back();
    CapturedFrame narrow = frame(64, 48);
    narrow.stride = 64;
    for (const CapturedFrame& bad : {cut, narrow, frame(0, 48), CapturedFrame()}) {
        EXPECT_FALSE(m_pipeline.process(bad).has_value());
    }
    EXPECT_EQ(m_script.openings, 0);
}

} // namespace
} // namespace corvane::test
