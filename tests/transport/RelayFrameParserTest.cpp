#include "RelayFrameParser.h"
#include "ScriptedRelay.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace corvane {
namespace {

using test::frameBytes;
using Frames = std::vector<std::pair<ChannelType, QByteArray>>;
using Result = RelayFrameParser::Result;

ByteSpan span(const QByteArray& bytes) {
    return {reinterpret_cast<const uint8_t*>(bytes.constData()), static_cast<size_t>(bytes.size())};
}

/// Feeds one piece, collects its frames and returns what the parser said last.
Result feed(RelayFrameParser& parser, const QByteArray& piece, Frames& frames) {
    ByteSpan input = span(piece);
    Result result = Result::NeedMoreData;
    while (!input.empty()) {
        result = parser.consume(input);
        if (result == Result::FrameReady) {
            frames.emplace_back(parser.channel(), parser.takePayload());
        }
    }
    return result;
}

TEST(RelayFrameParser, EverySplitOfAStreamYieldsTheSameFrames) {
    const Frames expected{{ChannelType::Video, "first payload"},
                          {ChannelType::Control, QByteArray()},
                          {ChannelType::Control, QByteArray("\0\1\2", 3)}};
    QByteArray stream;
    for (const auto& [channel, payload] : expected) {
        stream += frameBytes(static_cast<uint8_t>(channel), payload);
    }
    for (qsizetype first = 0; first <= stream.size(); ++first) {
        for (qsizetype second = first; second <= stream.size(); ++second) {
            RelayFrameParser parser;
            Frames frames;
            feed(parser, stream.left(first), frames);
            feed(parser, stream.mid(first, second - first), frames);
            feed(parser, stream.mid(second), frames);
            ASSERT_EQ(frames, expected) << "split at " << first << " and " << second;
        }
    }
}

TEST(RelayFrameParser, RefusedHeaderDropsThePieceAndTheNextOneStartsAfresh) {
    const struct {
        QByteArray header;
        Result result;
    } cases[] = {
        {frameBytes(2, 0), Result::InvalidChannel},
        {frameBytes(255, 0xFFFFFFFF), Result::InvalidChannel},
        {frameBytes(1, 16'777'217), Result::PayloadTooLarge},
        {frameBytes(0, 0xFFFFFFFF), Result::PayloadTooLarge},
    };
    for (const auto& item : cases) {
        RelayFrameParser parser;
        Frames frames;
        EXPECT_EQ(feed(parser, item.header.left(4), frames), Result::NeedMoreData);
        EXPECT_EQ(feed(parser, item.header.mid(4) + frameBytes(0, "dropped"), frames), item.result);
        EXPECT_EQ(parser.channelByte(), static_cast<uint8_t>(item.header[0]));
        EXPECT_TRUE(frames.empty());
        EXPECT_EQ(feed(parser, frameBytes(1, "kept"), frames), Result::FrameReady);
        EXPECT_EQ(frames, (Frames{{ChannelType::Video, "kept"}}));
    }
}

} // namespace
} // namespace corvane
