#include "input/InputForwarder.h"
#include "support/LogCapture.h"

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

class InputForwarderTest : public ::testing::Test {
protected:
    using Positions = std::vector<double>;

    void process(double x, InputEventType type = InputEventType::MouseMove) {
        forwarder->processEvent({.type = type, .x = x});
    }

    bool waitForInjections(size_t count) {
        return QTest::qWaitFor([&] { return script.injected.size() >= count; });
    }

    test::LogCapture log;
    Script script;
    std::unique_ptr<InputForwarder> forwarder =
        std::make_unique<InputForwarder>(std::make_unique<ScriptedBackend>(script));
};

TEST_F(InputForwarderTest, OfABurstTheFirstGoesAtOnceAndTheLatestAtTheIntervalsEnd) {
    for (int i = 1; i <= 10; ++i) {
        process(i);
    }
    EXPECT_EQ(script.injected, Positions{1});
    ASSERT_TRUE(waitForInjections(2));
    EXPECT_EQ(script.injected, (Positions{1, 10}));
    // That interval ended without starting another one.
    process(11);
    EXPECT_EQ(script.injected, (Positions{1, 10, 11}));
}

TEST_F(InputForwarderTest, OtherEventsOvertakeAWaitingMoveThatDestructionInjects) {
    process(1);
    process(2);
    process(3, InputEventType::MouseButtonPress);
    process(4, InputEventType::KeyPress);
    EXPECT_EQ(script.injected, (Positions{1, 3, 4}));
    forwarder.reset();
    EXPECT_EQ(script.injected, (Positions{1, 3, 4, 2}));
    EXPECT_TRUE(script.destroyed);
}

TEST_F(InputForwarderTest, WarnsOfRefusalsButThoseOfMovesAndOfAMissingBackend) {
    script.accept = false;
    process(1);
    process(2, InputEventType::KeyRelease);
    InputForwarder bare(nullptr);
    bare.processEvent({.type = InputEventType::MouseMove});
    bare.flushPendingMouseMove();
    EXPECT_EQ(log.lines(),
              (std::vector<std::string>{"warning|InputForwarder: failed to inject event type 6",
                                        "warning|InputForwarder: no backend available"}));
}

} // namespace
} // namespace corvane
