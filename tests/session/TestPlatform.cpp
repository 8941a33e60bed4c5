#include "TestPlatform.h"

#include "DesktopScene.h"
#include "MonotonicClock.h"

namespace corvane::test {

namespace {

class SyntheticScreen : public IScreenCaptureBackend {
public:
    explicit SyntheticScreen(std::shared_ptr<Machine> machine) : m_machine(std::move(machine)) {}

    bool initialize(int monitorIndex) override {
        m_machine->monitor = monitorIndex;
        m_initialized = m_machine->canCapture;
        return m_initialized;
    }
    void shutdown() override { m_initialized = false; }
    std::unique_ptr<CapturedFrame> captureFrame() override {
        if (m_machine->framesToShow-- <= 0) {
            m_machine->framesToShow = 0;
            return nullptr;
        }
        auto frame = std::make_unique<CapturedFrame>();
        frame->width = m_machine->width;
        frame->height = m_machine->height;
        frame->stride = frame->width * 4;
        frame->data = desktopScene(frame->width, frame->height, m_machine->shown);
        frame->timestamp = monotonicMilliseconds();
        m_machine->shownAt = frame->timestamp;
        ++m_machine->shown;
        return frame;
    }
    std::vector<MonitorInfo> monitors() override { return {currentMonitor()}; }
    MonitorInfo currentMonitor() const override {
        MonitorInfo monitor;
        monitor.index = static_cast<uint32_t>(m_machine->monitor.load());
        return monitor;
    }
    bool isInitialized() const override { return m_initialized; }

private:
    std::shared_ptr<Machine> m_machine;
    std::atomic<bool> m_initialized{false};
};

class RecordingInput : public IInputBackend {
public:
    explicit RecordingInput(std::shared_ptr<Machine> machine) : m_machine(std::move(machine)) {}

    bool initialize() override { return true; }
    void shutdown() override {}
    bool injectEvent(const InputEvent& event) override {
        m_machine->injected.push_back(event);
        return true;
    }

private:
    std::shared_ptr<Machine> m_machine;
};

} // namespace

SessionPlatform createTestPlatform(std::shared_ptr<Machine> machine) {
    SessionPlatform platform;
    platform.captureCandidates = [machine] {
        return std::vector<CaptureBackendCandidate>{
            {[machine] { return std::make_unique<SyntheticScreen>(machine); },
             "Using synthetic screen (monitor {})", ""}};
    };
    platform.inputBackend = [machine] {
        return std::make_unique<RecordingInput>(machine);
    };
    platform.peerTransport = [] {
        return nullptr;
    };
    return platform;
}

} // namespace corvane::test
