#include "media/AV1Decoder.h"
#include "media/AV1Encoder.h"
#include "media/AV1Packet.h"
#include "media/AV1Tuning.h"
#include "media/FrameConverter.h"
#include "support/Bytes.h"
#include "support/DesktopScene.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace corvane {
namespace {

ByteVector sceneNv12(int width, int height, int step) {
    const ByteVector bgra = test::desktopScene(width, height, step);
    ByteVector nv12 = allocateNV12(width, height);
    FrameConverter().convert(bgra.data(), width, height, width * 4, nv12.data(), nv12.size());
    return nv12;
}

template <typename Bytes>
double psnr(const uint8_t* expected, const Bytes& actual) {
    double squares = 0;
    for (size_t i = 0; i < actual.size(); ++i) {
        squares += std::pow(double{1} * expected[i] - actual[i], 2);
    }
    return 10 * std::log10(255.0 * 255.0 * static_cast<double>(actual.size()) / (squares + 1e-9));
}

EncoderConfig configFor(int width, int height) {
    return {.width = width, .height = height, .cqLevel = 23, .profile = {}};
}

class VideoCodecTest : public ::testing::Test {
protected:
    /// The packet of the scene at `step`, in the size the encoder is configured for.
    std::unique_ptr<EncodedPacket> encode(int step, bool forceKeyframe = false) {
        const auto [width, height] = encoder.configuredSize();
        return encoder.encode(sceneNv12(width, height, step).data(), width, height,
                              1000 + static_cast<uint64_t>(step), forceKeyframe);
    }

    std::unique_ptr<DecodedFrame> decode(const ByteVector& packet, uint64_t timestamp = 0) {
        return decoder.decode(packet.data(), packet.size(), timestamp);
    }

    test::LogCapture log;
    AV1Encoder encoder;
    AV1Decoder decoder;
};

TEST_F(VideoCodecTest, SpeedPresetsMapToLibrarySpeeds) {
    const std::pair<const char*, int> cases[] = {
        {"8", 6},    {"13", 10},      {"12abc", 9}, {"-5", 0},          {"500", 10},
        {"Fast", 8}, {"veryslow", 1}, {"", 8},      {"99999999999", 8},
    };
    for (const auto& [preset, speed] : cases) {
        EXPECT_EQ(AV1Tuning::speedOf(preset), speed) << preset;
    }
}

TEST_F(VideoCodecTest, RoundTripKeepsThePictureAlsoWhenTheDecoderGoesOnAndEnds) {
    // 256 wide, a picture has no padding and the frame shares its luma plane with the library.
    for (const auto& [width, height] : {std::pair{320, 180}, {64, 64}, {256, 144}}) {
        SCOPED_TRACE(::testing::Message() << width << "x" << height);
        ASSERT_TRUE(encoder.initialize(configFor(width, height)));
        ASSERT_TRUE(decoder.initialize(0, 0));
        std::vector<std::unique_ptr<DecodedFrame>> frames;
        for (int step = 0; step < 12; ++step) {
            const auto packet = encode(step);
            ASSERT_TRUE(packet);
            EXPECT_EQ(packet->isKeyframe, step == 0);
            EXPECT_EQ(isKeyframePacket(packet->data), step == 0);
            EXPECT_EQ(std::pair(packet->pts, packet->dts), std::pair(int64_t{step}, int64_t{step}));
            frames.push_back(decode(packet->data, packet->timestamp));
            ASSERT_TRUE(frames.back());
        }
        decoder.shutdown();
        const auto lumaSize = static_cast<size_t>(width * height);
        for (int step = 0; step < 12; ++step) {
            const DecodedFrame& frame = *frames[static_cast<size_t>(step)];
            EXPECT_EQ(frame.timestamp, 1000U + static_cast<uint64_t>(step));
            EXPECT_EQ(std::pair(frame.width, frame.height), std::pair(width, height));
            EXPECT_EQ(std::pair(frame.yStride, frame.uvStride), std::pair(width, width));
            ASSERT_EQ(frame.yPlane.size(), lumaSize);
            ASSERT_EQ(frame.uvPlane.size(), static_cast<size_t>(height / 2 * width));
            const ByteVector sent = sceneNv12(width, height, step);
            EXPECT_GT(psnr(sent.data(), frame.yPlane), 30);
            EXPECT_GT(psnr(sent.data() + lumaSize, frame.uvPlane), 32);
        }
    }
}

TEST_F(VideoCodecTest, OddSizesReadNothingBeyondTheBufferAndKeepGreyEdges) {
    ASSERT_TRUE(encoder.initialize(configFor(17, 9)));
    ASSERT_TRUE(decoder.initialize(17, 9));
    // Exactly as large as the converter allocates: a sanitizer sees any read behind it.
    const ByteVector grey(17 * 9 * 3 / 2, uint8_t{128});
    const auto packet = encoder.encode(grey.data(), 17, 9, 0, false);
    ASSERT_TRUE(packet);
    const auto frame = decode(packet->data);
    ASSERT_TRUE(frame);
    EXPECT_EQ(std::pair(frame->width, frame->height), std::pair(17, 9));
    ASSERT_EQ(frame->uvPlane.size(), 17U * 4);
    for (size_t i = 0; i < frame->uvPlane.size(); ++i) {
        const bool beyondPairs = i % 17 == 16;
        EXPECT_NEAR(frame->uvPlane[i], beyondPairs ? 0 : 128, beyondPairs ? 0 : 2) << i;
    }
}

TEST_F(VideoCodecTest, KeyFramesComeWhenDueAndWhenForced) {
    EncoderConfig config = configFor(64, 64);
    config.keyframeInterval = 5;
    config.cqLevel = 80;
    ASSERT_TRUE(encoder.initialize(config));
    const auto encodeKinds = [this](int frames, int forced) {
        std::string kinds;
        for (int step = 0; step < frames; ++step) {
            const auto packet = encode(0, step == forced);
            kinds += !packet ? '!' : packet->isKeyframe ? 'K' : '.';
        }
        return kinds;
    };
    EXPECT_EQ(encodeKinds(9, 8), "K....K..K");

    // A new rate falls back to the library's own, practically endless key-frame distance.
    encoder.updateBitrate(800);
    EXPECT_FALSE(log.contains("config update failed"));
    encodeKinds(5, -1); // the old distance still ends once
    EXPECT_EQ(encodeKinds(12, -1), "............");
}

TEST_F(VideoCodecTest, TheInteractiveProfileLooksAsGoodAndRefinesAStillPicture) {
    constexpr int kWidth = 320;
    constexpr int kHeight = 180;
    const auto fidelityOf = [this](const ByteVector& packet, int step) {
        const auto frame = decode(packet);
        return frame ? psnr(sceneNv12(kWidth, kHeight, step).data(), frame->yPlane) : 0;
    };
    for (const int cqLevel : {23, 45}) {
        EncoderConfig config = configFor(kWidth, kHeight);
        config.cqLevel = cqLevel;
        double fidelity[2] = {};
        for (const bool interactive : {false, true}) {
            config.profile = interactive ? kInteractiveProfile : "";
            ASSERT_TRUE(encoder.initialize(config));
            ASSERT_TRUE(decoder.initialize(0, 0));
            for (int step = 0; step < 6; ++step) {
                const auto packet = encode(step);
                ASSERT_TRUE(packet);
                EXPECT_EQ(packet->isKeyframe, step == 0);
                fidelity[interactive] = fidelityOf(packet->data, step);
            }
        }
        EXPECT_GE(fidelity[true], fidelity[false]) << cqLevel;
    }
    encoder.setQuality(5);
    const auto packet = encode(5);
    ASSERT_TRUE(packet);
    EXPECT_FALSE(packet->isKeyframe);
    EXPECT_GE(fidelityOf(packet->data, 5), 45);
}

TEST_F(VideoCodecTest, EncoderRefusesWhatItIsNotConfiguredFor) {
    const ByteVector frame = sceneNv12(64, 64, 0);
    EXPECT_FALSE(encoder.encode(frame.data(), 64, 64, 0, false));
    encoder.updateBitrate(500);
    ASSERT_TRUE(encoder.initialize(configFor(64, 64)));
    encoder.updateBitrate(0);
    EXPECT_FALSE(encoder.encode(frame.data(), 64, 32, 0, false));
    EXPECT_TRUE(encoder.encode(frame.data(), 64, 64, 0, false));
    EXPECT_FALSE(encoder.initialize(configFor(0, 64)));
    EXPECT_FALSE(encoder.isInitialized());
    EXPECT_EQ(log.count("warning|AV1Encoder: ignoring invalid bitrate 0 kbps"), 1);
}

TEST_F(VideoCodecTest, DecoderRefusesCallsItCannotServe) {
    const uint8_t byte = 0;
    EXPECT_FALSE(decoder.decode(&byte, 1, 0));
    ASSERT_TRUE(decoder.initialize(1280, 720));
    EXPECT_FALSE(decoder.decode(&byte, 0, 0));
    EXPECT_FALSE(decoder.decode(nullptr, 5, 0));
    decoder.shutdown();
    EXPECT_FALSE(decoder.isInitialized());
    EXPECT_FALSE(decoder.decode(&byte, 1, 0));
}

TEST_F(VideoCodecTest, DecoderSurvivesHostilePackets) {
    ASSERT_TRUE(encoder.initialize(configFor(64, 64)));
    ASSERT_TRUE(decoder.initialize(0, 0));
    const ByteVector good = encode(0)->data;
    std::mt19937 random(2);
    for (size_t cut = 1; cut < good.size(); cut += 7) {
        decode(ByteVector(good.begin(), good.begin() + static_cast<ptrdiff_t>(cut)));
    }
    for (int round = 0; round < 400; ++round) {
        ByteVector bytes = round % 2 == 0 ? good : ByteVector(1 + random() % 300, uint8_t{0});
        const size_t changes = round % 2 == 0 ? 1 + random() % 8 : bytes.size();
        for (size_t i = 0; i < changes; ++i) {
            bytes[random() % bytes.size()] = static_cast<uint8_t>(random());
        }
        decode(bytes);
    }
    // Key frames are looked for before anything is decoded, so a sanitizer must see each cut.
    for (size_t cut = 0; cut < good.size(); ++cut) {
        const auto cutShort = std::make_unique<uint8_t[]>(cut);
        std::copy_n(good.data(), cut, cutShort.get());
        isKeyframePacket({cutShort.get(), cut});
    }
    ByteVector units = test::hexBytes("1200 2a01ff 2e0801aa"); // a delimiter and metadata
    appendBytes(units, good);
    EXPECT_TRUE(isKeyframePacket(units));
    // A still picture's sequence header for 65536 x 65536 pixels, and a frame of it.
    log.clear();
    EXPECT_FALSE(decode({0x0a, 0x0a, 0x18, 0x3f, 0xff, 0xff, 0xff, 0xff, 0xc0, 0x00, 0x02, 0x00,
                         0x32, 0x04, 0x00, 0x00, 0x00, 0x00}));
    EXPECT_EQ(log.count("error|AV1Decoder: dav1d_send_data failed (error -34)"), 1);
    // One more in case the decoder holds a picture back; after that it must work again.
    decode(good);
    EXPECT_TRUE(decode(good));
}

TEST_F(VideoCodecTest, DecoderRefusesTenBitStreams) {
    ASSERT_TRUE(decoder.initialize(0, 0));
    // One grey frame of 64 x 64 pixels.
    EXPECT_FALSE(
        decode({0x12, 0x00, 0x0a, 0x0a, 0x00, 0x00, 0x00, 0x02, 0xaf, 0xff, 0x9b, 0x5f, 0x28,
                0x08, 0x32, 0x0a, 0x10, 0x00, 0xf8, 0x00, 0x00, 0x02, 0xc0, 0x00, 0x80, 0x0e}));
    EXPECT_EQ(log.count("error|AV1Decoder: unsupported pixel format (layout=1, bpc=10)"), 1);
}

} // namespace
} // namespace corvane
