#include "transport/RelayFrameParser.h"
#include "ScriptedRelay.h"
#include "common/ByteViews.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace corvane {
namespace {

using test::frameBytes;
using Frames = std::vector<std::pair<ChannelType, QByteArray>>;

/// Feeds one piece and collects its frames.
void feed(RelayFrameParser& parser, const QByteArray& piece, Frames& frames) {
    ByteSpan input = bytesOf(piece);
    while (!input.empty()) {
        if (parser.consume(input) == RelayFrameParser::Result::FrameReady) {
            frames.emplace_back(parser.channel(), parser.takePayload());
        }
    }
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

} // namespace
} // namespace corvane
