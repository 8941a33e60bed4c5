#include "input/windows/Win32InputBackend.h"
#include "InputWitness.h"
#include "support/LogCapture.h"

#include <QTest>
#include <gmock/gmock.h>

#include <array>
#include <cstring>
#include <limits>

namespace corvane {
namespace {

using ::testing::Contains;
using ::testing::SizeIs;
using Type = InputEventType;
using namespace Qt::StringLiterals;

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
        {Type::MouseMove, 1, 0, 0x8001, 0},
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
    const std::pair<InputEvent, const char*> cases[] = {
        {mouseEvent(Type::MouseMove, 0, 0), "(mouse move)"},
        {mouseEvent(Type::MouseButtonPress, 0, 0, 5), "(mouse button)"},
        {mouseEvent(Type::MouseWheel, 0, 0), "(mouse wheel)"},
        {keyEvent(Type::KeyRelease, 'A', 0), "(keyboard)"},
    };
    for (const UINT result : {0U, 2U}) {
        accepted = result;
        for (const auto& [event, line] : cases) {
            log.clear();
            EXPECT_FALSE(backend.injectEvent(event));
            EXPECT_TRUE(log.once(std::string("warning|Win32InputBackend: SendInput ") + line +
                                 " failed, error 5"))
                << line;
        }
    }
}

TEST_F(Win32InputRecords, UnknownEventsAndButtonsAreNotSent) {
    for (const int type : {0, 7, 255}) {
        EXPECT_FALSE(backend.injectEvent(mouseEvent(static_cast<Type>(type), 0, 0)));
        EXPECT_TRUE(
            log.once("warning|Win32InputBackend: unknown event type " + std::to_string(type)));
    }
    for (const int button : {0, 6, 7, 255}) {
        EXPECT_FALSE(backend.injectEvent(mouseEvent(Type::MouseButtonPress, 0, 0, button)));
        EXPECT_FALSE(backend.injectEvent(mouseEvent(Type::MouseButtonRelease, 0, 0, button)));
        EXPECT_EQ(
            log.count("warning|Win32InputBackend: unknown mouse button " + std::to_string(button)),
            2);
    }
    EXPECT_TRUE(sent.empty());
}

TEST_F(Win32InputRecords, NothingIsSentOutsideItsLife) {
    backend.shutdown();
    EXPECT_FALSE(backend.injectEvent(mouseEvent(Type::MouseMove, 0, 0)));
    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(log.lines(),
              (std::vector<std::string>{
                  "info|Win32InputBackend: initialized", "info|Win32InputBackend: shut down",
                  "warning|Win32InputBackend: injectEvent called before initialization"}));
    EXPECT_TRUE(backend.initialize());
    EXPECT_TRUE(backend.injectEvent(mouseEvent(Type::MouseMove, 0, 0)));
}

/// Real injection, seen by a window of this process.
class Win32InputArrival : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(backend->initialize());
        if (!QTest::qWaitFor([this] { return witness.hasFocus(); })) {
            GTEST_SKIP() << "the desktop does not give the focus away";
        }
    }

    void inject(const InputEvent& event) { EXPECT_TRUE(backend->injectEvent(event)); }

    /// Presses and releases a key; all lines up to the release that `arrives` names.
    QStringList tap(uint32_t keyCode, uint32_t scanCode, bool extended, const QString& arrives) {
        inject(keyEvent(Type::KeyPress, keyCode, scanCode, extended));
        inject(keyEvent(Type::KeyRelease, keyCode, scanCode, extended));
        return witness.takeUntil(u"key up %1"_s.arg(arrives));
    }

    test::LogCapture log;
    test::InputWitness witness;
    std::unique_ptr<IInputBackend> backend = createInputBackend();
};

TEST_F(Win32InputArrival, MouseEventsReachThePlaceTheyName) {
    const int right = GetSystemMetrics(SM_CXSCREEN) - 1;
    const int bottom = GetSystemMetrics(SM_CYSCREEN) - 1;
    const char* const names[] = {"left", "right", "middle", "x1", "x2"};
    for (int button = 1; button <= 5; ++button) {
        const QString name = QString::fromLatin1(names[button - 1]);
        inject(mouseEvent(Type::MouseButtonPress, 0.0, 1.0, button));
        inject(mouseEvent(Type::MouseButtonRelease, 1.0, 0.0, button));
        EXPECT_THAT(witness.takeUntil(u"%1 up %2,0"_s.arg(name).arg(right)),
                    Contains(u"%1 down 0,%2"_s.arg(name).arg(bottom)));
    }
    inject(mouseEvent(Type::MouseMove, 0.0, 0.0));
    EXPECT_THAT(witness.takeUntil(u"move 0,0"_s), SizeIs(1));
    inject(mouseEvent(Type::MouseWheel, 0.0, 0.0, 1, -240));
    inject(mouseEvent(Type::MouseWheel, 0.0, 0.0, 1, 50));
    EXPECT_THAT(witness.takeUntil(u"wheel 50"_s), Contains(u"wheel -240"_s));
}

TEST_F(Win32InputArrival, KeysArriveAsTheKeysTheyAre) {
    // Key code, scan code, extended; what arrives as virtual key and scan code, and as a character.
    const std::tuple<uint32_t, uint32_t, bool, const char*, const char*> cases[] = {
        {'A', 0x1E, false, "41 1E", "char 61"},
        {'Z', 0, false, "5A 0", "char 7A"},
        {VK_RETURN, 0x1C, false, "D 1C", "char D"},
        {VK_LEFT, 0xE04B, true, "25 14B", nullptr},
        {VK_UP, 0xE048, true, "26 148", nullptr},
        {VK_DELETE, 0xE053, true, "2E 153", nullptr},
        {VK_CONTROL, 0xE01D, true, "11 11D", nullptr},
        {VK_MENU, 0xE038, true, "12 138", nullptr},
        {VK_PAUSE, 0, false, "13 0", nullptr},
        {VK_SNAPSHOT, 0xE037, true, "2C 137", nullptr},
    };
    for (int round = 0; round < 2; ++round) {
        for (const auto& [keyCode, scanCode, extended, name, character] : cases) {
            const QString arrives = QString::fromLatin1(name);
            const QStringList seen = tap(keyCode, scanCode, extended, arrives);
            if (character != nullptr) {
                EXPECT_THAT(seen, Contains(QString::fromLatin1(character)));
            }
            if (keyCode != VK_SNAPSHOT) { // The system keeps its press to itself.
                EXPECT_THAT(seen, Contains(u"key down %1"_s.arg(arrives)));
            }
        }
        const int numLock = GetKeyState(VK_NUMLOCK);
        tap(VK_NUMLOCK, 0xE045, true, u"90 145"_s);
        EXPECT_NE(GetKeyState(VK_NUMLOCK) & 1, numLock & 1);
    }
}

} // namespace
} // namespace corvane
