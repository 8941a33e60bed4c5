#include "InputForwarder.h"
#include "LogCapture.h"

#include <QTest>
#include <gtest/gtest.h>

#include <vector>

namespace corvane {
namespace {

struct Script {
    std::vector<double> injected; ///< x of each event, in order
    bool accept = true;
    bool destroyed = false;
};

class ScriptedBackend : public IInputBackend {
public:
    explicit ScriptedBackend(Script& script) : m_script(script) {}
    ~ScriptedBackend() override { m_script.destroyed = true; }
    bool initialize() override { return true; }
    void shutdown() override {}
    bool injectEvent(const InputEvent& event) override {
        m_script.injected.push_back(event.x);
        return m_script.accept;
    }

private:
    Script& m_script;
};

InputEvent eventAt(double x, InputEventType type = InputEventType::MouseMove) {
    InputEvent event;
    event.type = type;
    event.x = x;
    return event;
}

class InputForwarderTest : public ::testing::Test {
protected:
    using Positions = std::vector<double>;

    bool waitForInjections(size_t count) {
        return QTest::qWaitFor([&] { return script.injected.size() >= count; });
    }

    test::LogCapture log;
    Script script;
    std::unique_ptr<InputForwarder> forwarder =
        std::make_unique<InputForwarder>(std::make_unique<ScriptedBackend>(script));
};

TEST_F(InputForwarderTest, OfABurstTheFirstGoesAtOnceAndTheLatestAtTheWindowsEnd) {
    for (int i = 1; i <= 10; ++i) {
        forwarder->processEvent(eventAt(i));
    }
    EXPECT_EQ(script.injected, Positions{1});
    ASSERT_TRUE(waitForInjections(2));
    EXPECT_EQ(script.injected, (Positions{1, 10}));
    // The window closed without opening another one.
    forwarder->processEvent(eventAt(11));
    EXPECT_EQ(script.injected, (Positions{1, 10, 11}));
}

TEST_F(InputForwarderTest, OtherEventsOvertakeAWaitingMove) {
    forwarder->processEvent(eventAt(1));
    forwarder->processEvent(eventAt(2));
    forwarder->processEvent(eventAt(3, InputEventType::MouseButtonPress));
    forwarder->processEvent(eventAt(4, InputEventType::KeyPress));
    EXPECT_EQ(script.injected, (Positions{1, 3, 4}));
    ASSERT_TRUE(waitForInjections(4));
    EXPECT_EQ(script.injected, (Positions{1, 3, 4, 2}));
}

TEST_F(InputForwarderTest, DestructionInjectsTheWaitingMoveFirst) {
    forwarder->processEvent(eventAt(1));
    forwarder->processEvent(eventAt(2));
    forwarder.reset();
    EXPECT_EQ(script.injected, (Positions{1, 2}));
    EXPECT_TRUE(script.destroyed);
}

TEST_F(InputForwarderTest, RefusalsAreLoggedExceptThoseOfMoves) {
    script.accept = false;
    forwarder->processEvent(eventAt(1));
    forwarder->processEvent(eventAt(2, InputEventType::KeyRelease));
    EXPECT_EQ(log.lines(),
              std::vector<std::string>{"warning|InputForwarder: failed to inject event type 6"});
}

TEST_F(InputForwarderTest, WithoutABackendEventsAreDroppedWithAWarning) {
    InputForwarder bare(nullptr);
    bare.processEvent(eventAt(1));
    bare.flushPendingMouseMove();
    EXPECT_EQ(log.count("warning|InputForwarder: no backend available"), 1);
}

} // namespace
} // namespace corvane
