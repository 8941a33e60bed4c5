#include "input/windows/Win32InputBackend.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>

namespace corvane {
namespace {

using Type = InputEventType;

InputEvent mouseEvent(Type type, double x, double y, int button = 1, int16_t wheel = 0) {
    return {.type = type,
            .x = x,
            .y = y,
            .button = static_cast<MouseButton>(button),
            .wheelDelta = wheel};
}

InputEvent keyEvent(Type type, uint32_t keyCode, uint32_t scanCode, bool extended = false) {
    return {.type = type, .keyCode = keyCode, .scanCode = scanCode, .extended = extended};
}

/// The 40 bytes of a record as 32-bit words, as the system reads them.
using Words = std::array<uint32_t, 10>;
static_assert(sizeof(Words) == sizeof(INPUT));

Words mouseWords(uint32_t dx, uint32_t dy, uint32_t data, uint32_t flags) {
    return {0, 0, dx, dy, data, flags};
}

Words keyWords(uint32_t virtualKey, uint32_t scanCode, uint32_t flags) {
    return {1, 0, virtualKey | scanCode << 16, flags};
}

class Win32InputRecords : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(backend.initialize()); }

    UINT take(UINT count, const INPUT* records, int size) {
        EXPECT_EQ(count, 1U);
        EXPECT_EQ(size, static_cast<int>(sizeof(INPUT)));
        std::memcpy(sent.emplace_back().data(), records, sizeof(INPUT));
        return accepted;
    }

    /// The one record that `event` makes; all ones when it made none or several.
    Words recordOf(const InputEvent& event) {
        sent.clear();
        EXPECT_TRUE(backend.injectEvent(event));
        Words none;
        none.fill(~0U);
        return sent.size() == 1 ? sent.front() : none;
    }

    test::LogCapture log;
    UINT accepted = 1;
    std::vector<Words> sent;
    Win32InputBackend backend{{.sendInput = [this](UINT count, INPUT* records,
                                                   int size) { return take(count, records, size); },
                               .lastError =
                                   [] {
                                       return DWORD{5};
                                   }}};
};

TEST_F(Win32InputRecords, MouseEventsByKind) {
    const std::tuple<Type, int, int16_t, uint32_t, uint32_t> cases[] = {
        {Type::MouseMove, 9, 120, 0x8001, 0},
        {Type::MouseButtonPress, 1, 0, 0x8003, 0},
        {Type::MouseButtonRelease, 1, 0, 0x8005, 0},
        {Type::MouseButtonPress, 2, 0, 0x8009, 0},
        {Type::MouseButtonRelease, 2, 0, 0x8011, 0},
        {Type::MouseButtonPress, 3, 0, 0x8021, 0},
        {Type::MouseButtonRelease, 3, 0, 0x8041, 0},
        {Type::MouseButtonPress, 4, 0, 0x8081, 1},
        {Type::MouseButtonRelease, 4, 0, 0x8101, 1},
        {Type::MouseButtonPress, 5, 0, 0x8081, 2},
        {Type::MouseButtonRelease, 5, 0, 0x8101, 2},
        {Type::MouseWheel, 1, 120, 0x8801, 120},
        {Type::MouseWheel, 1, -120, 0x8801, 0xFFFFFF88},
        {Type::MouseWheel, 1, -32768, 0x8801, 0xFFFF8000},
    };
    for (const auto& [type, button, wheel, flags, data] : cases) {
        EXPECT_EQ(recordOf(mouseEvent(type, 0.5, 1.0, button, wheel)),
                  mouseWords(32768, 65535, data, flags))
            << std::hex << flags << " " << data;
    }
}

TEST_F(Win32InputRecords, PositionsAreRoundedAndStayOnThePrimaryMonitor) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, uint32_t> cases[] = {
        {0.0, 0},     {1.0, 65535},       {0.5, 32768},   {0.25, 16384},  {0.1 / 65535, 0},
        {1.7, 65535}, {0.5 / 65535.0, 1}, {-0.2, 0},      {-0.0, 0},      {0.75, 49151},
        {nan, 0},     {infinity, 65535},  {-infinity, 0}, {1e300, 65535},
    };
    for (const auto& [fraction, place] : cases) {
        EXPECT_EQ(recordOf(mouseEvent(Type::MouseMove, fraction, 0.0)),
                  mouseWords(place, 0, 0, 0x8001))
            << fraction;
        EXPECT_EQ(recordOf(mouseEvent(Type::MouseMove, 0.0, fraction)),
                  mouseWords(0, place, 0, 0x8001))
            << fraction;
    }
}

TEST_F(Win32InputRecords, KeysGoByScanCodeWhereThereIsOne) {
    const std::pair<InputEvent, Words> cases[] = {
        {keyEvent(Type::KeyPress, 'A', 0x1E), keyWords('A', 0x1E, 0x8)},
        {keyEvent(Type::KeyRelease, VK_RETURN, 0x1C), keyWords(VK_RETURN, 0x1C, 0xA)},
        {keyEvent(Type::KeyPress, VK_LEFT, 0xE04B, true), keyWords(VK_LEFT, 0xE04B, 0x9)},
        {keyEvent(Type::KeyRelease, VK_LEFT, 0xE04B, true), keyWords(VK_LEFT, 0xE04B, 0xB)},
        {keyEvent(Type::KeyPress, VK_LEFT, 0x14B), keyWords(VK_LEFT, 0x14B, 0x8)},
        {keyEvent(Type::KeyPress, VK_LWIN, 0), keyWords(VK_LWIN, 0, 0x0)},
        {keyEvent(Type::KeyRelease, VK_LWIN, 0, true), keyWords(VK_LWIN, 0, 0x3)},
        {keyEvent(Type::KeyPress, 0xABCD0041, 0xABCD0000), keyWords('A', 0, 0x8)},
    };
    for (const auto& [event, words] : cases) {
        EXPECT_EQ(recordOf(event), words) << std::hex << event.keyCode << " " << event.scanCode;
    }
}

TEST_F(Win32InputRecords, RefusalsAreNamedByKind) {
    for (const UINT result : {0U, 2U}) {
        accepted = result;
        EXPECT_FALSE(backend.injectEvent(mouseEvent(Type::MouseWheel, 0, 0)));
        EXPECT_FALSE(backend.injectEvent(keyEvent(Type::KeyRelease, 'A', 0)));
    }
    EXPECT_EQ(log.count("warning|Win32InputBackend: SendInput (mouse wheel) failed, error 5"), 2);
    EXPECT_EQ(log.count("warning|Win32InputBackend: SendInput (keyboard) failed, error 5"), 2);
}

TEST_F(Win32InputRecords, UnknownEventsAndButtonsAreNotSent) {
    for (const int type : {0, 7, 255}) {
        EXPECT_FALSE(backend.injectEvent(mouseEvent(static_cast<Type>(type), 0, 0)));
    }
    for (const int button : {0, 6, 7, 255}) {
        EXPECT_FALSE(backend.injectEvent(mouseEvent(Type::MouseButtonPress, 0, 0, button)));
        EXPECT_FALSE(backend.injectEvent(mouseEvent(Type::MouseButtonRelease, 0, 0, button)));
    }
    EXPECT_TRUE(sent.empty());
}

TEST_F(Win32InputRecords, NothingIsSentOutsideItsLife) {
    backend.shutdown();
    EXPECT_FALSE(backend.injectEvent(mouseEvent(Type::MouseMove, 0, 0)));
    EXPECT_TRUE(sent.empty());
    EXPECT_TRUE(backend.initialize());
    EXPECT_TRUE(backend.injectEvent(mouseEvent(Type::MouseMove, 0, 0)));
}

} // namespace
} // namespace corvane
