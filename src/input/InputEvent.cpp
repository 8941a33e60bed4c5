#include "input/InputEvent.h"

#include "common/ByteReader.h"
#include "common/ByteWriter.h"

#include <stdexcept>
#include <string>

namespace corvane {

namespace {

constexpr size_t kHeaderSize = 1 + 8;                      // type, time stamp
constexpr size_t kMouseSize = kHeaderSize + 8 + 8 + 1 + 2; // x, y, button, wheel
constexpr size_t kKeySize = kHeaderSize + 4 + 4 + 1;       // virtual key, scan code, extended

enum class Group { Mouse, Key, Unknown };

Group groupOf(InputEventType type) {
    switch (type) {
    case InputEventType::MouseMove:
    case InputEventType::MouseButtonPress:
    case InputEventType::MouseButtonRelease:
    case InputEventType::MouseWheel:
        return Group::Mouse;
    case InputEventType::KeyPress:
    case InputEventType::KeyRelease:
        return Group::Key;
    case InputEventType::None:
        break;
    }
    return Group::Unknown;
}

[[noreturn]] void failUnknownType(const char* operation, InputEventType type) {
    throw std::runtime_error(std::string("InputEvent::") + operation + ": unknown event type " +
                             std::to_string(static_cast<int>(type)));
}

void requireSize(const char* group, size_t size, size_t needed) {
    if (size < needed) {
        throw std::runtime_error(std::string("InputEvent::deserialize: buffer too small for ") +
                                 group + " event (" + std::to_string(size) + " < " +
                                 std::to_string(needed) + ")");
    }
}

} // namespace

ByteVector InputEvent::serialize() const {
    const Group group = groupOf(type);
    ByteWriter writer(group == Group::Mouse ? kMouseSize : kKeySize);
    writer.integer(static_cast<uint8_t>(type));
    writer.integer(timestampMs);
    switch (group) {
    case Group::Mouse:
        writer.binary64(x);
        writer.binary64(y);
        writer.integer(static_cast<uint8_t>(button));
        writer.integer(static_cast<uint16_t>(wheelDelta));
        break;
    case Group::Key:
        writer.integer(keyCode);
        writer.integer(scanCode);
        writer.integer(static_cast<uint8_t>(extended ? 1 : 0));
        break;
    case Group::Unknown:
        failUnknownType("serialize", type);
    }
    return writer.take();
}

InputEvent InputEvent::deserialize(const uint8_t* data, size_t size) {
    if (data == nullptr || size < kHeaderSize) {
        throw std::runtime_error("InputEvent::deserialize: buffer too small for header");
    }
    ByteReader reader({data, size});
    InputEvent event;
    event.type = static_cast<InputEventType>(*reader.integer<uint8_t>());
    event.timestampMs = *reader.integer<uint64_t>();
    switch (groupOf(event.type)) {
    case Group::Mouse:
        requireSize("mouse", size, kMouseSize);
        event.x = *reader.binary64();
        event.y = *reader.binary64();
        event.button = static_cast<MouseButton>(*reader.integer<uint8_t>());
        event.wheelDelta = static_cast<int16_t>(*reader.integer<uint16_t>());
        break;
    case Group::Key:
        requireSize("key", size, kKeySize);
        event.keyCode = *reader.integer<uint32_t>();
        event.scanCode = *reader.integer<uint32_t>();
        event.extended = *reader.integer<uint8_t>() != 0;
        break;
    case Group::Unknown:
        failUnknownType("deserialize", event.type);
    }
    return event;
}

} // namespace corvane
