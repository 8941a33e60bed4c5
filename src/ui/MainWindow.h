#pragma once

#include "DecodedFrame.h"
#include "SessionState.h"

#include <QMainWindow>

#include <memory>

class QStackedWidget;

namespace corvane {

class ApiClient;
class AuthController;
class ConnectCard;
class DeviceCard;
class HomePage;
class MessageBoxes;
class SessionManager;
class SettingsController;
class SignalingClient;
class ViewerPage;

/// The program's only top-level window: the home page with this device's identity and the way to a
/// partner, and the viewer page while a partner is being viewed. Conducts between the user, the
/// session and the server connection; what it shows lives in the pages.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// All five are borrowed and must outlive the window.
    MainWindow(AuthController* auth, ApiClient* api, SignalingClient* signaling,
               SessionManager* session, SettingsController* settings);
    ~MainWindow() override;

public Q_SLOTS:
    void onAuthenticated(const QString& clientId);
    void onLoggedOut();
    void onSignalingConnected();
    void onSignalingDisconnected();
    void onConnectClicked();
    void onDisconnectClicked();
    void onSessionHandshakeRequest(const QString& sessionId, const QString& masterClientId,
                                   const QString& purpose);
    void onSessionAutoAccept(const QString& sessionId, const QString& masterClientId,
                             const QString& masterEcdhPublicKey);
    void onSessionStateChanged(corvane::SessionState newState);
    void onSessionError(const QString& error);
    void onFrameDecoded(std::shared_ptr<corvane::DecodedFrame> frame);
    void onRequestError(const QString& endpoint, int statusCode, const QString& detail);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createPages();
    void connectPages();
    void connectServices();
    void setStatus(const QString& text, const char* color);
    bool isRegistered() const;
    void restoreConnectButton();
    void endSession(const QString& reason);
    void enterViewer();
    void returnHome();
    void changePassword();

    AuthController* const m_auth;
    ApiClient* const m_api;
    SignalingClient* const m_signaling;
    SessionManager* const m_session;
    SettingsController* const m_settings;
    MessageBoxes* m_boxes = nullptr;
    QStackedWidget* m_pages = nullptr;
    HomePage* m_home = nullptr;
    ViewerPage* m_viewer = nullptr;
    DeviceCard* m_device = nullptr;
    ConnectCard* m_connect = nullptr;
};

} // namespace corvane
