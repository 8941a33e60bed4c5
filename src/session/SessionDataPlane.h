#pragma once

#include "session/SessionLink.h"
#include "session/SessionPlatform.h"
#include "session/SessionServices.h"
#include "session/SessionState.h"
#include "session/StreamingSettings.h"
#include "session/TargetStream.h"
#include "session/ViewerStream.h"

#include <QObject>

#include <memory>

namespace corvane {

/// Handles all of a session's traffic once its key is agreed: dispatches what comes in by channel
/// and tag, and owns the link, the services and the streams of its side.
///
/// One per session, on the main thread. Unusable messages are logged and dropped; the session
/// continues.
class SessionDataPlane : public QObject {
    Q_OBJECT

public:
    /// `cipher` holds the session's key and is not null.
    SessionDataPlane(SessionRole role, std::unique_ptr<AesGcmCipher> cipher,
                     QObject* parent = nullptr);
    ~SessionDataPlane() override;

    /// The transport to send through, borrowed; null for none.
    void setTransport(ITransport* transport);

    /// Creates the services and the streams of this side. A repeated call does nothing.
    void startStreaming(const StreamingSettings& settings, const SessionPlatform& platform);

    void stopStreaming();

    /// Nothing is sent before the session is connected or after it closes.
    void setState(SessionState state);

    void setClipboardSharing(bool enabled) { m_services.setClipboardSharing(enabled); }
    void setQualityMonitor(ConnectionQualityMonitor* monitor) { m_link.setQualityMonitor(monitor); }

    /// Null before streaming starts.
    ChatService* chatService() const { return m_services.chat(); }
    FileTransferService* fileTransferService() const { return m_services.fileTransfer(); }

    void receive(ChannelType channel, const QByteArray& sealed);

    /// Viewer only; dropped otherwise.
    void sendInputEvent(const InputEvent& event);

    void requestMonitorSwitch(int monitorIndex);

Q_SIGNALS:
    void frameDecoded(std::shared_ptr<corvane::DecodedFrame> frame);
    void inputEventReceived(corvane::InputEvent event);
    /// The peer asked for the end of the session. Emitted while its message is being handled.
    void disconnectRequested();
    /// For the user.
    void failed(QString error);

private:
    struct ControlRoute;
    static const ControlRoute* findRoute(uint8_t tag);

    void receiveControl(const QByteArray& sealed);
    void receiveVideo(const QByteArray& sealed);
    void onInputEvent(ByteSpan message);
    void onKeyframeRequest(ByteSpan message);
    void onCommand(ByteSpan message);
    void onClipboard(ByteSpan message) { m_services.onClipboard(message); }
    void onFileTransfer(ByteSpan message) { m_services.onFileTransfer(message); }
    void onChat(ByteSpan message) { m_services.onChat(message); }

    void createViewer();
    void updateFlow();
    SendResult sendControl(ControlTag tag, ByteSpan payload);
    void sendVideo(const ByteVector& sealed);

    const SessionRole m_role;
    SessionLink m_link;
    SessionServices m_services;
    bool m_streaming = false;
    std::unique_ptr<TargetStream> m_target;
    std::unique_ptr<ViewerStream> m_viewer;
};

} // namespace corvane
