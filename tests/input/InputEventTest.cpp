#include "input/InputEvent.h"

#include <gmock/gmock.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <tuple>

namespace corvane {
namespace {

using enum InputEventType;
using testing::ThrowsMessage;

auto fieldsOf(const InputEvent& e) {
    return std::tuple(e.type, e.timestampMs, e.x, e.y, e.button, e.wheelDelta, e.keyCode,
                      e.scanCode, e.extended);
}

TEST(InputEvent, RoundTripKeepsExtremesAndIgnoresWhatFollows) {
    const InputEvent events[] = {
        {.type = MouseButtonPress, .x = 1e300, .button = static_cast<MouseButton>(7)},
        {.type = MouseWheel, .y = -0.25, .wheelDelta = std::numeric_limits<int16_t>::min()},
        {.type = KeyRelease, .keyCode = 0xFFFFFFFF, .scanCode = 0x0100001E, .extended = true},
    };
    for (const InputEvent& event : events) {
        ByteVector bytes = event.serialize();
        bytes.back() = event.extended ? 2 : bytes.back(); // any but 0 is true
        bytes.push_back(0xEE);
        EXPECT_EQ(fieldsOf(InputEvent::deserialize(bytes.data(), bytes.size())), fieldsOf(event));
    }
}

TEST(InputEvent, RefusalsNameTheFirstThingWrong) {
    const std::string reading = "InputEvent::deserialize: ";
    const std::tuple<uint8_t, size_t, const char*> cases[] = {
        {0, 0, "buffer too small for header"},
        {7, 8, "buffer too small for header"},
        {7, 9, "unknown event type 7"},
        {0, 28, "unknown event type 0"},
        {255, 28, "unknown event type 255"},
        {1, 9, "buffer too small for mouse event (9 < 28)"},
        {4, 27, "buffer too small for mouse event (27 < 28)"},
        {6, 17, "buffer too small for key event (17 < 18)"},
    };
    for (const auto& [type, size, failure] : cases) {
        // Exactly as long as it claims, so that a read past the end is one past the allocation.
        const ByteVector bytes(size, type);
        EXPECT_THAT([&] { InputEvent::deserialize(bytes.data(), bytes.size()); },
                    ThrowsMessage<std::runtime_error>(reading + failure));
    }
    EXPECT_THAT([] { InputEvent::deserialize(nullptr, 28); },
                ThrowsMessage<std::runtime_error>(reading + "buffer too small for header"));
    for (const int type : {0, 7, 255}) {
        const InputEvent event{.type = static_cast<InputEventType>(type)};
        EXPECT_THAT([&] { event.serialize(); },
                    ThrowsMessage<std::runtime_error>("InputEvent::serialize: unknown event type " +
                                                      std::to_string(type)));
    }
}

} // namespace
} // namespace corvane
