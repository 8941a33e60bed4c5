#pragma once

#include "common/ByteVector.h"
#include "input/InputEvent.h"
#include "media/CapturedFrame.h"
#include "session/FramePipeline.h"
#include "session/LagGuard.h"
#include "session/PacketQueue.h"
#include "session/PictureRequests.h"
#include "session/StreamingSettings.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace corvane {

class AesGcmCipher;
class IScreenCaptureBackend;
class InputForwarder;
class ScreenCaptureManager;
struct SessionPlatform;

/// The shared machine's side of a running session: captures, encodes and seals on the capture
/// thread, hands every packet to the main thread, and applies the viewer's input.
///
/// All calls belong to the main thread, and so do all signals unless they say otherwise.
class TargetStream : public QObject {
    Q_OBJECT

public:
    using LoadProbe = std::function<LinkLoad()>;

    /// `cipher` is borrowed and must outlive the stream; `load` tells about the line that the
    /// packets leave on.
    TargetStream(StreamingSettings settings, AesGcmCipher& cipher, LoadProbe load,
                 QObject* parent = nullptr);
    ~TargetStream() override;

    /// Opens the first capture backend that works and starts capturing. False, logged, when none
    /// does.
    bool start(const SessionPlatform& platform);

    /// While off, no picture is taken, so that the first one of a screen that never changes is not
    /// lost before the first packet can be sent. Off initially.
    void setFlowing(bool flowing);

    /// Ends capture and joins its thread. Packets not yet handed over are dropped.
    void stop();

    /// See `PictureRequests`.
    void requestKeyframe();

    /// The second key frame is the same sealed message; the viewer knows it by its counter.
    void repairPicture();
    void switchMonitor(int index);
    void applyInput(const InputEvent& event);

Q_SIGNALS:
    /// One sealed video message.
    void packetReady(const corvane::ByteVector& sealed);

    /// Emitted on the capture thread: wakes the main thread.
    void packetsWaiting(QPrivateSignal);

private:
    std::unique_ptr<IScreenCaptureBackend> openBackend(const SessionPlatform& platform) const;
    void onFrame(const CapturedFrame& frame);
    void deliverPackets();
    void watchLine();
    void setPace();

    const StreamingSettings m_settings;
    const LoadProbe m_load;
    LagGuard m_lag;
    QTimer m_lineTimer;  ///< runs while packets are on their way
    QTimer m_inputTimer; ///< runs while the viewer's input keeps coming
    bool m_flowing = false;
    FramePipeline m_pipeline; ///< capture thread only, while it runs
    PacketQueue m_packets;
    PictureRequests m_requests;
    std::unique_ptr<ScreenCaptureManager> m_capture;
    std::unique_ptr<InputForwarder> m_input;
};

} // namespace corvane
