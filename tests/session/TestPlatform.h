#pragma once

#include "common/MonotonicClock.h"
#include "crypto/AesGcmCipher.h"
#include "session/SessionPlatform.h"
#include "support/DesktopScene.h"

#include <QSize>

#include <atomic>
#include <memory>
#include <vector>

namespace corvane::test {

/// A cipher that both ends of a test make alike.
inline std::unique_ptr<AesGcmCipher> testCipher() {
    return std::make_unique<AesGcmCipher>(ByteVector(32, 1), ByteVector(12, 2));
}

/// What a synthetic machine shows and what is done to it. Shared between the test and the session's
/// objects, which may outlive one another.
struct Machine {
    std::atomic<int> framesToShow{1'000'000}; ///< pictures still to come; a still screen shows one
    std::atomic<int> width{160};
    std::atomic<int> height{120};
    std::atomic<int> monitor{-1};     ///< the one captured now
    std::atomic<int> shown{0};        ///< pictures so far; each is the next step of the scene
    std::atomic<uint64_t> shownAt{0}; ///< the last of them, monotonic milliseconds
    bool canCapture = true;
    std::vector<InputEvent> injected;
};

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

/// A platform whose screen and input are `machine`, without peer-to-peer transport.
inline SessionPlatform createTestPlatform(std::shared_ptr<Machine> machine) {
    const CaptureBackendCandidate screen{
        [machine] { return std::make_unique<SyntheticScreen>(machine); },
        "Using synthetic screen (monitor {})", ""};
    return {.captureCandidates = [screen] { return std::vector{screen}; },
            .inputBackend = [machine] { return std::make_unique<RecordingInput>(machine); },
            .peerTransport =
                [] {
                    return nullptr;
                }};
}

} // namespace corvane::test
