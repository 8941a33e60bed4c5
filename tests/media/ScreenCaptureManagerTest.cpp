#include "media/ScreenCaptureManager.h"
#include "media/CaptureBackendCandidate.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QTest>
#include <gtest/gtest.h>

#include <future>
#include <stdexcept>
#include <thread>

namespace corvane {
namespace {

using namespace std::chrono_literals;
using test::eventually;
using Frame = std::unique_ptr<CapturedFrame>;

Frame newFrame(std::vector<FrameRect> changes = {}) {
    auto frame = std::make_unique<CapturedFrame>();
    frame->dirtyRects = std::move(changes);
    return frame;
}
using namespace Qt::StringLiterals;

/// Does what its script says; the script runs on the capture thread.
class ScriptedBackend : public IScreenCaptureBackend {
public:
    bool initialize(int monitorIndex) override {
        monitor = static_cast<uint32_t>(monitorIndex);
        return initialized = onInitialize();
    }
    void shutdown() override {
        ++shutdowns;
        initialized = false;
    }
    Frame captureFrame() override { return onCapture(); }
    std::vector<MonitorInfo> monitors() override { return found; }
    MonitorInfo currentMonitor() const override { return {.index = monitor, .name = {}}; }
    ScreenWait waitForChange(std::chrono::milliseconds timeout) override { return onWait(timeout); }
    bool isInitialized() const override { return initialized; }

    std::function<Frame()> onCapture{[] {
        return newFrame();
    }};
    std::function<ScreenWait(std::chrono::milliseconds)> onWait{[](auto) {
        return ScreenWait::Unsupported;
    }};
    std::function<bool()> onInitialize{[] {
        return true;
    }};
    std::vector<MonitorInfo> found;
    std::atomic<bool> initialized{true};
    std::atomic<uint32_t> monitor{0};
    std::atomic<int> shutdowns{0};
};

class ScreenCaptureManagerTest : public ::testing::Test {
protected:
    static constexpr int kFast = 120;

    /// The first manager takes the scripted backend, a second one gets none.
    void create(ScreenCaptureManager::Timings timings = {}) {
        manager = std::make_unique<ScreenCaptureManager>(std::move(backend), timings);
        QObject::connect(manager.get(), &ScreenCaptureManager::captureError, &context,
                         [this](const QString& message) { errors.append(message); });
    }

    std::chrono::nanoseconds timeToStop() {
        const auto begin = std::chrono::steady_clock::now();
        manager->stop();
        return std::chrono::steady_clock::now() - begin;
    }

    bool waitForFrames(uint64_t count) {
        return eventually([&] { return manager->framesDelivered() >= count; });
    }

    test::LogCapture log;
    std::unique_ptr<ScriptedBackend> backend = std::make_unique<ScriptedBackend>();
    ScriptedBackend& script = *backend;
    QObject context;
    QStringList errors;
    std::unique_ptr<ScreenCaptureManager> manager;
};

TEST_F(ScreenCaptureManagerTest, RefusesToStartWithoutAReadyBackend) {
    create();
    script.initialized = false;
    manager->start(10);
    create();
    manager->start(10);
    manager->stop();
    EXPECT_EQ(errors, (QStringList{u"Capture backend is not initialized"_s,
                                   u"No capture backend available"_s}));
}

TEST_F(ScreenCaptureManagerTest, PacesAndDeliversTheSameFrameTwice) {
    create();
    std::mutex mutex;
    std::vector<std::chrono::steady_clock::time_point> times;
    std::vector<std::shared_ptr<CapturedFrame>> called, signalled;
    manager->setFrameCallback([&](const std::shared_ptr<CapturedFrame>& frame) {
        const std::lock_guard lock(mutex);
        times.push_back(std::chrono::steady_clock::now());
        called.push_back(frame);
    });
    QObject::connect(manager.get(), &ScreenCaptureManager::frameCaptured, &context,
                     [&](const auto& frame) {
                         const std::lock_guard lock(mutex);
                         signalled.push_back(frame);
                     });
    manager->start(25);
    ASSERT_TRUE(eventually([&] { return signalled.size() >= 6; }));
    manager->stop();
    EXPECT_EQ(manager->framesDelivered(), 0U);
    ASSERT_GE(called.size(), 6U);
    EXPECT_TRUE(std::equal(called.begin(), called.begin() + 6, signalled.begin()));
    EXPECT_GE(times[5] - times[0], 5 * 40ms - 10ms);
    EXPECT_LT(times[5] - times[0], 3s);
}

TEST_F(ScreenCaptureManagerTest, AChangeIsCapturedAtOnceAndTheFasterPaceCountsAtOnce) {
    std::atomic<bool> changed = false;
    script.onCapture = [&] {
        return changed.exchange(false) ? newFrame() : nullptr;
    };
    script.onWait = [&](std::chrono::milliseconds timeout) {
        const auto end = std::chrono::steady_clock::now() + timeout;
        while (!changed && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(1ms);
        }
        return changed ? ScreenWait::MayHaveChanged : ScreenWait::Nothing;
    };
    create();
    manager->start(1);
    const auto timeToFrame = [&](uint64_t count) {
        const auto begin = std::chrono::steady_clock::now();
        changed = true;
        EXPECT_TRUE(waitForFrames(count));
        return std::chrono::steady_clock::now() - begin;
    };
    EXPECT_LT(timeToFrame(1), 800ms) << "nothing was shown before";
    changed = true;
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(manager->framesDelivered(), 1U) << "the pace holds";
    manager->setPace(30);
    EXPECT_LT(timeToFrame(2), 800ms);
}

TEST_F(ScreenCaptureManagerTest, LimitsTheRateStopsAtOnceAndRunsAgain) {
    create();
    for (const auto& [asked, used] : {std::pair{0, 1}, {500, 120}}) {
        manager->start(asked);
        manager->start(50);
        ASSERT_TRUE(waitForFrames(1));
        EXPECT_LT(timeToStop(), 500ms);
        EXPECT_TRUE(log.once("info|ScreenCaptureManager: started (target " + std::to_string(used) +
                             " FPS)"));
    }
    EXPECT_EQ(log.count("warning|ScreenCaptureManager: already running"), 2);
}

TEST_F(ScreenCaptureManagerTest, TheLastMonitorSwitchWins) {
    std::promise<void> entered;
    std::promise<void> switched;
    script.onCapture = [&, first = true]() mutable -> Frame {
        if (std::exchange(first, false)) {
            entered.set_value();
            switched.get_future().wait();
        }
        return newFrame();
    };
    create();
    manager->start(kFast);
    entered.get_future().wait();
    manager->switchMonitor(1);
    manager->switchMonitor(2);
    switched.set_value();
    ASSERT_TRUE(waitForFrames(3));
    manager->stop();
    EXPECT_EQ(script.monitor, 2U);
    EXPECT_EQ(script.shutdowns, 1);
}

TEST_F(ScreenCaptureManagerTest, RecoveryBacksOffAndStartsOverAfterAFrame) {
    // The switch fails, recovery needs seven attempts, and a later loss begins anew.
    script.onInitialize = [attempts = 0]() mutable {
        return ++attempts > 7;
    };
    script.onCapture = [this, captures = 0]() mutable -> Frame {
        if (!script.initialized) {
            return nullptr;
        }
        if (++captures == 3) {
            script.initialized = false;
            return nullptr;
        }
        return newFrame();
    };
    create({.firstRecoveryDelay = 1ms, .longestRecoveryDelay = 20ms});
    manager->switchMonitor(4);
    manager->start(kFast);
    ASSERT_TRUE(waitForFrames(4));
    manager->stop();
    const std::pair<int, int> delays[] = {{1, 2}, {2, 1}, {4, 1}, {8, 1}, {16, 1}, {20, 2}};
    for (const auto& [delay, times] : delays) {
        EXPECT_EQ(log.count("warning|ScreenCaptureManager: backend lost, reinitializing in " +
                            std::to_string(delay) + " ms"),
                  times);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(errors.count(u"Failed to reinitialize capture backend"_s), 6);
}

TEST_F(ScreenCaptureManagerTest, StopsAtOnceDuringARecoveryPause) {
    script.onCapture = [this]() -> Frame {
        script.initialized = false;
        return nullptr;
    };
    create({.firstRecoveryDelay = 5000ms});
    manager->start(kFast);
    ASSERT_TRUE(eventually([this] { return log.contains("reinitializing in 5000 ms"); }));
    EXPECT_LT(timeToStop(), 1s);
}

TEST_F(ScreenCaptureManagerTest, AnExceptionCostsOneRound) {
    script.onCapture = [first = true]() mutable -> Frame {
        if (std::exchange(first, false)) {
            throw std::runtime_error("device on fire");
        }
        return newFrame();
    };
    create();
    manager->start(kFast);
    ASSERT_TRUE(eventually([this] { return manager->framesDelivered() > 0 && !errors.empty(); }));
    manager->stop();
    EXPECT_EQ(errors, QStringList{u"device on fire"_s});
    EXPECT_FALSE(log.contains("backend lost"));
}

TEST_F(ScreenCaptureManagerTest, AKeyFrameRequestMarksTheNextFrameHoweverLate) {
    std::atomic<bool> still{true};
    script.onCapture = [&still]() -> Frame {
        return still ? nullptr : newFrame({{0, 0, 1, 1}});
    };
    create();
    std::vector<std::pair<bool, size_t>> frames;
    manager->setFrameCallback([&frames](const std::shared_ptr<CapturedFrame>& frame) {
        frames.emplace_back(frame->keyframeRequested, frame->dirtyRects.size());
    });
    manager->requestKeyframe();
    manager->start(kFast);
    EXPECT_FALSE(QTest::qWaitFor([this] { return manager->framesDelivered() > 0; }, 60));
    still = false;
    ASSERT_TRUE(waitForFrames(4));
    manager->stop();
    ASSERT_GE(frames.size(), 3U);
    frames.resize(3);
    EXPECT_EQ(frames, (std::vector<std::pair<bool, size_t>>{{true, 0}, {false, 1}, {false, 1}}));
}

TEST_F(ScreenCaptureManagerTest, TerminatesAThreadThatHangs) {
    std::promise<void> entered;
    script.onCapture = [&entered]() -> Frame {
        entered.set_value();
        std::this_thread::sleep_for(10s);
        return nullptr;
    };
    create({.joinLimit = 50ms});
    manager->start(kFast);
    entered.get_future().wait();
    EXPECT_LT(timeToStop(), 5s);
    EXPECT_TRUE(log.once("warning|ScreenCaptureManager: worker thread did not finish within 5 s -- "
                         "terminating"));
}

TEST(CapturableMonitors, AreThoseOfTheFirstCandidateThatFindsAny) {
    const auto finding = [](const std::vector<MonitorInfo>& found) {
        const auto create = [found] {
            auto backend = std::make_unique<ScriptedBackend>();
            backend->found = found;
            return backend;
        };
        return CaptureBackendCandidate{create, "", ""};
    };
    const auto monitors = capturableMonitors(
        {finding({}), finding({{.name = "first"}}), finding({{.name = "second"}})});
    ASSERT_EQ(monitors.size(), 1U);
    EXPECT_EQ(monitors[0].name, "first");
    EXPECT_TRUE(capturableMonitors({finding({})}).empty());
}

} // namespace
} // namespace corvane
