#include "session/TargetStream.h"

#include "input/InputForwarder.h"
#include "media/AV1Encoder.h"
#include "media/ScreenCaptureManager.h"
#include "session/RepeatingScreen.h"
#include "session/SessionPlatform.h"

#include <QScopeGuard>
#include <spdlog/spdlog.h>

#include <optional>

namespace corvane {

TargetStream::TargetStream(StreamingSettings settings, AesGcmCipher& cipher, QObject* parent)
    : QObject(parent), m_settings(std::move(settings)),
      m_pipeline(m_settings, cipher, std::make_unique<AV1Encoder>()) {
    connect(this, &TargetStream::packetsWaiting, this, &TargetStream::deliverPackets,
            Qt::QueuedConnection);
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
        std::make_unique<RepeatingScreen>(std::move(backend), m_requests));

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
    m_packets.setFlowing(flowing);
}

void TargetStream::stop() {
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
    if (!m_packets.waitForRoom()) {
        return;
    }
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
    }
}

} // namespace corvane
