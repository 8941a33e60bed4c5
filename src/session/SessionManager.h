#pragma once

#include "input/InputEvent.h"
#include "media/DecodedFrame.h"
#include "session/SessionPlatform.h"
#include "session/SessionState.h"
#include "session/StreamingSettings.h"
#include "transport/ITransport.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <nlohmann/json.hpp>

#include <memory>
#include <optional>

namespace corvane {

class ApiClient;
class ChatService;
class ConnectionQualityMonitor;
class EcdhKeyExchange;
class FileTransferService;
class SessionDataPlane;
class SessionTransport;
class SignalingClient;

/// Owns a remote-access session from its request to its end, as viewer or as shared machine: the
/// state machine, the handshake, the key agreement and the teardown. At most one session at a time;
/// one manager per process. Main thread.
class SessionManager : public QObject {
    Q_OBJECT

public:
    /// The clients are borrowed and must outlive the manager.
    SessionManager(ApiClient* api, SignalingClient* signaling, SessionPlatform platform = {},
                   QObject* parent = nullptr);
    /// Ends the session, if any, with the reason "destructor_cleanup".
    ~SessionManager() override;

    SessionState state() const { return m_state; }
    SessionRole role() const { return m_role; }
    QString sessionId() const { return m_sessionId; }
    QString peerClientId() const { return m_peerId; }

    /// What the connected session runs over: "p2p" or "relay"; empty before.
    QString transportMethod() const { return m_transportMethod; }

    /// Starts a session as viewer. Refused, with `sessionError`, unless idle or failed.
    void initiateSession(const QString& targetClientId, const QString& password);

    /// Accepts an incoming session as shared machine. Displaces a connected session; refused, with
    /// `sessionError`, while one is being set up or torn down. Without a master key the session
    /// waits in Handshaking until it is ended.
    void acceptSession(const QString& sessionId, const QString& masterClientId,
                       const QString& masterEcdhPublicKey);

    /// Ends the session and tells the server why. Does nothing when idle or failed.
    void endSession(const QString& reason);

    void setCaptureFrameRate(int framesPerSecond); ///< kept within 1..60
    /// While the viewer's input keeps coming, if that is more; kept within 1..60.
    void setFrameRateWithInput(int framesPerSecond);
    void setEncoderQuality(int quality, const std::string& speedText); ///< quality within 0..51
    void setMonitorIndex(int index);

    /// Also switches a running session that started with it.
    void setClipboardSharing(bool enabled);

    /// Counts the session's traffic. Borrowed; null for none.
    void setQualityMonitor(ConnectionQualityMonitor* monitor);

    /// The services of the running session, from the start of streaming until the session is
    /// cleaned up; null otherwise. A caller that keeps one needs a QPointer.
    ChatService* chatService() const;
    FileTransferService* fileTransferService() const;

public Q_SLOTS:
    /// Dropped unless this side is the viewer of a connected session.
    void sendInputEvent(const corvane::InputEvent& event);
    void requestMonitorSwitch(int monitorIndex);

Q_SIGNALS:
    void stateChanged(corvane::SessionState newState);
    void frameDecoded(std::shared_ptr<corvane::DecodedFrame> frame);
    void inputEventReceived(corvane::InputEvent event);
    void sessionError(QString error);

    /// The session is about to be ended by this side or by the server: the last chance to send
    /// something to the partner.
    void sessionEnding();

private Q_SLOTS:
    void onSessionCreated(const nlohmann::json& data);
    void onSessionUpdated(const nlohmann::json& data);
    void onHandshakeAck(const QString& sessionId, const QString& state,
                        const QString& targetEcdhPublicKey);
    void onRequestError(const QString& endpoint, int statusCode, const QString& detail);
    void onTransportEstablished(const QString& method);
    void onTransportFailed(const QString& reason);
    void onTransportData(corvane::ChannelType channel, const QByteArray& data);

private:
    /// Kept when the partner answers before the server's response to the request arrives.
    struct HandshakeAck {
        QString sessionId;
        QString state;
        QString targetEcdhPublicKey;
    };

    void setState(SessionState newState);
    void fail(const QString& error);
    bool createKeyExchange();
    bool createDataPlane();
    void setupTransport();
    void startStreaming();
    void stopStreaming();
    void endSessionLater(const QString& reason);
    void cleanup();

    ApiClient* const m_api;
    SignalingClient* const m_signaling;
    const SessionPlatform m_platform;
    StreamingSettings m_streaming;

    SessionState m_state = SessionState::Idle;
    SessionRole m_role = SessionRole::None;
    QString m_sessionId;
    QString m_peerId;
    QString m_transportMethod;
    /// Tells whether a queued end was meant for the current session.
    quint64 m_generation = 0;
    std::optional<HandshakeAck> m_earlyAck;
    QPointer<ConnectionQualityMonitor> m_qualityMonitor;

    std::unique_ptr<EcdhKeyExchange> m_keyExchange;
    std::unique_ptr<SessionDataPlane> m_dataPlane;
    std::unique_ptr<SessionTransport> m_transport;
};

} // namespace corvane
