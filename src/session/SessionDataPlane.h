#pragma once

#include "AesGcmCipher.h"
#include "ControlMessage.h"
#include "ITransport.h"
#include "SessionPlatform.h"
#include "SessionState.h"
#include "StreamingSettings.h"
#include "TargetStream.h"
#include "ViewerStream.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace corvane {

/// Everything one session carries once its key is agreed: seals what goes out, opens what comes in,
/// dispatches control messages by their tag, and owns the streams of its side.
///
/// One per session, on the main thread. Unusable messages are logged and dropped; the session goes
/// on.
class SessionDataPlane : public QObject {
    Q_OBJECT

public:
    /// Throws std::invalid_argument when the key material has the wrong size.
    SessionDataPlane(SessionRole role, const ByteVector& key, const ByteVector& baseIv,
                     QObject* parent = nullptr);
    ~SessionDataPlane() override;

    /// The transport to send through; borrowed.
    void setTransport(ITransport* transport);

    /// Creates the streams of this side. A repeated call does nothing.
    void startStreaming(const StreamingSettings& settings, const SessionPlatform& platform);

    void stopStreaming();

    /// Opens the way out: nothing is sent before the session is connected or after it closes.
    void setConnected(bool connected);

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
    void onChat(ByteSpan message);

    bool canSend() const { return m_connected && m_transport; }
    void updateFlow();
    bool sendControl(ControlTag tag, ByteSpan payload);
    void sendVideo(const ByteVector& sealed);
    ByteVector open(const QByteArray& sealed) const;

    const SessionRole m_role;
    AesGcmCipher m_cipher;
    QPointer<ITransport> m_transport;
    bool m_connected = false;
    bool m_streaming = false;
    std::unique_ptr<TargetStream> m_target;
    std::unique_ptr<ViewerStream> m_viewer;
};

} // namespace corvane
