#include "session/TargetStream.h"

#include "input/InputForwarder.h"
#include "media/AV1Encoder.h"
#include "media/ScreenCaptureManager.h"
#include "session/RepeatingScreen.h"
#include "session/SessionPlatform.h"
#include "session/StreamLevel.h"

#include <QScopeGuard>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <optional>

namespace corvane {

namespace {

constexpr std::chrono::milliseconds kLineInterval{10};
constexpr std::chrono::milliseconds kInputLasts{500};

} // namespace

TargetStream::TargetStream(StreamingSettings settings, AesGcmCipher& cipher, LoadProbe load,
                           QObject* parent)
    : QObject(parent), m_settings(std::move(settings)), m_load(std::move(load)),
      m_pipeline(m_settings, cipher, std::make_unique<AV1Encoder>()) {
    connect(this, &TargetStream::packetsWaiting, this, &TargetStream::deliverPackets,
            Qt::QueuedConnection);
    m_lineTimer.setTimerType(Qt::PreciseTimer);
    m_lineTimer.setInterval(kLineInterval);
    connect(&m_lineTimer, &QTimer::timeout, this, &TargetStream::watchLine);
    m_inputTimer.setSingleShot(true);
    m_inputTimer.setInterval(kInputLasts);
    connect(&m_inputTimer, &QTimer::timeout, this, &TargetStream::setPace);
}

TargetStream::~TargetStream() {
    stop();
}

bool TargetStream::start(const SessionPlatform& platform) {
    auto backend = openBackend(platform);
    if (!backend) {
        spdlog::error("Failed to initialize any screen capture backend");
        return false;
    }
    m_capture = std::make_unique<ScreenCaptureManager>(
        std::make_unique<RepeatingScreen>(std::move(backend), m_requests, m_packets));

    auto inputBackend = platform.inputBackend();
    inputBackend->initialize();
    m_input = std::make_unique<InputForwarder>(std::move(inputBackend));

    m_capture->setFrameCallback([this](const std::shared_ptr<CapturedFrame>& frame) {
        if (frame) {
            m_requests.setLastPicture(frame);
            onFrame(*frame);
        }
    });
    m_capture->start(m_settings.captureFrameRate);
    spdlog::info("Target streaming started (capture@{}fps + encode + input forwarding)",
                 m_settings.captureFrameRate);
    return true;
}

void TargetStream::setFlowing(bool flowing) {
    m_flowing = flowing;
    m_lineTimer.stop();
    if (flowing) {
        watchLine();
    } else {
        m_packets.setFlowing(false);
    }
}

void TargetStream::stop() {
    m_lineTimer.stop();
    m_inputTimer.stop();
    m_packets.close();
    if (m_capture) {
        m_capture->stop();
    }
    m_pipeline.shutdown();
}

void TargetStream::requestKeyframe() {
    if (m_capture && m_requests.requestKeyframe()) {
        m_capture->requestKeyframe();
    }
}

void TargetStream::repairPicture() {
    if (m_capture && m_requests.requestRepair()) {
        m_capture->requestKeyframe();
    }
}

void TargetStream::switchMonitor(int index) {
    if (m_capture) {
        m_capture->switchMonitor(index);
    }
}

void TargetStream::applyInput(const InputEvent& event) {
    if (m_input) {
        m_input->processEvent(event);
        const bool begins = !m_inputTimer.isActive();
        m_inputTimer.start();
        if (begins) {
            setPace();
        }
    }
}

std::unique_ptr<IScreenCaptureBackend>
TargetStream::openBackend(const SessionPlatform& platform) const {
    for (const auto& candidate : platform.captureCandidates()) {
        auto backend = candidate.create();
        if (backend->initialize(m_settings.monitorIndex)) {
            spdlog::info(fmt::runtime(candidate.readyText), m_settings.monitorIndex);
            return backend;
        }
        if (!candidate.unavailableText.empty()) {
            spdlog::warn("{}", candidate.unavailableText);
        }
    }
    return nullptr;
}

void TargetStream::onFrame(const CapturedFrame& frame) {
    std::optional<ByteVector> sealed;
    {
        // Before the main thread can fail to send it and request another; also if making it fails.
        const auto made = qScopeGuard([&] {
            if (frame.keyframeRequested) {
                m_requests.keyframeDone();
            }
        });
        sealed = m_pipeline.process(frame);
    }
    if (!sealed) {
        return;
    }
    bool wake = frame.keyframeRequested && m_requests.takeRepair() && m_packets.push(*sealed);
    wake |= m_packets.push(std::move(*sealed));
    if (wake) {
        Q_EMIT packetsWaiting(QPrivateSignal());
    }
}

void TargetStream::deliverPackets() {
    while (const auto packet = m_packets.pop()) {
        Q_EMIT packetReady(*packet);
        m_lag.onSent(std::chrono::steady_clock::now());
    }
    if (m_flowing) {
        watchLine();
        m_lineTimer.start();
    }
}

void TargetStream::watchLine() {
    const auto now = std::chrono::steady_clock::now();
    const int level = m_lag.level();
    m_packets.setFlowing(m_lag.update(now, m_load()));
    if (m_lag.level() != level) {
        spdlog::info("Stream level {} -> {} of {}, to suit the line", level, m_lag.level(),
                     kMaxStreamLevel);
        m_pipeline.setLevel(m_lag.level());
        setPace();
    }
    if (m_lag.isIdle(now)) {
        m_lineTimer.stop();
    }
}

void TargetStream::setPace() {
    const int wanted =
        m_inputTimer.isActive() ? m_settings.frameRateWithInput : m_settings.captureFrameRate;
    if (m_capture) {
        m_capture->setPace(std::min(std::max(wanted, m_settings.captureFrameRate),
                                    streamLevel(m_lag.level()).maxFramesPerSecond));
    }
}

} // namespace corvane
