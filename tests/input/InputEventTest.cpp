#include "InputEvent.h"

#include <QByteArray>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace corvane {
namespace {

InputEvent mouseEvent(InputEventType type, double x, double y, MouseButton button, int16_t wheel) {
    InputEvent event;
    event.type = type;
    event.timestampMs = 0x0102030405060708;
    event.x = x;
    event.y = y;
    event.button = button;
    event.wheelDelta = wheel;
    return event;
}

InputEvent keyEvent(InputEventType type, uint32_t keyCode, uint32_t scanCode, bool extended) {
    InputEvent event;
    event.type = type;
    event.timestampMs = 1;
    event.keyCode = keyCode;
    event.scanCode = scanCode;
    event.extended = extended;
    return event;
}

QByteArray hex(const ByteVector& bytes) {
    return QByteArray(reinterpret_cast<const char*>(bytes.data()),
                      static_cast<qsizetype>(bytes.size()))
        .toHex();
}

ByteVector record(uint8_t type, size_t size) {
    ByteVector bytes(size, 0);
    if (size > 0) {
        bytes[0] = type;
    }
    return bytes;
}

template <typename Action>
std::string failureOf(Action action) {
    try {
        action();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "no failure";
}

TEST(InputEvent, BytesOnTheWire) {
    EXPECT_EQ(hex(mouseEvent(InputEventType::MouseWheel, 0.5, -0.25, MouseButton::Forward, -120)
                      .serialize()),
              "04"
              "0807060504030201"
              "000000000000e03f"
              "000000000000d0bf"
              "05"
              "88ff");
    EXPECT_EQ(hex(keyEvent(InputEventType::KeyRelease, 0xA3, 0xE01D, true).serialize()),
              "06"
              "0100000000000000"
              "a3000000"
              "1de00000"
              "01");
}

TEST(InputEvent, RoundTripKeepsEveryFieldOfItsGroupAndDefaultsTheOther) {
    const InputEvent events[] = {
        mouseEvent(InputEventType::MouseMove, 1.5, -0.25, MouseButton::Left, 0),
        mouseEvent(InputEventType::MouseButtonPress, 0.0, 1.0, static_cast<MouseButton>(7), 0),
        mouseEvent(InputEventType::MouseButtonRelease, 1e300, 0.0, MouseButton::Back, 0),
        mouseEvent(InputEventType::MouseWheel, 0.0, 0.0, MouseButton::Left,
                   std::numeric_limits<int16_t>::min()),
        keyEvent(InputEventType::KeyPress, 0xFFFFFFFF, 0x0100001E, false),
        keyEvent(InputEventType::KeyRelease, 0, 0, true),
    };
    for (const InputEvent& event : events) {
        ByteVector bytes = event.serialize();
        bytes.push_back(0xEE); // ignored
        const InputEvent read = InputEvent::deserialize(bytes.data(), bytes.size());
        EXPECT_EQ(read.type, event.type);
        EXPECT_EQ(read.timestampMs, event.timestampMs);
        EXPECT_EQ(read.x, event.x);
        EXPECT_EQ(read.y, event.y);
        EXPECT_EQ(read.button, event.button);
        EXPECT_EQ(read.wheelDelta, event.wheelDelta);
        EXPECT_EQ(read.keyCode, event.keyCode);
        EXPECT_EQ(read.scanCode, event.scanCode);
        EXPECT_EQ(read.extended, event.extended);
    }
}

TEST(InputEvent, AnyNonZeroExtendedByteIsTrue) {
    ByteVector bytes = record(5, 18);
    bytes[17] = 0x02;
    EXPECT_TRUE(InputEvent::deserialize(bytes.data(), bytes.size()).extended);
}

TEST(InputEvent, DeserializeNamesTheFirstThingWrong) {
    const struct {
        uint8_t type;
        size_t size;
        const char* failure;
    } cases[] = {
        {0, 0, "InputEvent::deserialize: buffer too small for header"},
        {7, 8, "InputEvent::deserialize: buffer too small for header"},
        {7, 9, "InputEvent::deserialize: unknown event type 7"},
        {0, 28, "InputEvent::deserialize: unknown event type 0"},
        {255, 28, "InputEvent::deserialize: unknown event type 255"},
        {1, 9, "InputEvent::deserialize: buffer too small for mouse event (9 < 28)"},
        {2, 20, "InputEvent::deserialize: buffer too small for mouse event (20 < 28)"},
        {4, 27, "InputEvent::deserialize: buffer too small for mouse event (27 < 28)"},
        {5, 9, "InputEvent::deserialize: buffer too small for key event (9 < 18)"},
        {6, 17, "InputEvent::deserialize: buffer too small for key event (17 < 18)"},
        {3, 28, "no failure"},
        {6, 18, "no failure"},
    };
    for (const auto& item : cases) {
        // Exactly as long as it claims, so that a read past the end is one past the allocation.
        const ByteVector bytes = record(item.type, item.size);
        EXPECT_EQ(failureOf([&] { InputEvent::deserialize(bytes.data(), bytes.size()); }),
                  item.failure);
    }
    EXPECT_EQ(failureOf([] { InputEvent::deserialize(nullptr, 28); }),
              "InputEvent::deserialize: buffer too small for header");
}

TEST(InputEvent, SerializeRefusesUnknownTypes) {
    for (const int type : {0, 7, 255}) {
        InputEvent event;
        event.type = static_cast<InputEventType>(type);
        EXPECT_EQ(failureOf([&] { event.serialize(); }),
                  "InputEvent::serialize: unknown event type " + std::to_string(type));
    }
}

} // namespace
} // namespace corvane
