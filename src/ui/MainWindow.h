#pragma once

#include "media/DecodedFrame.h"
#include "services/ConnectionStats.h"
#include "session/SessionState.h"
#include "ui/MainWindowPlatform.h"

#include <QMainWindow>
#include <QSystemTrayIcon>

#include <memory>

class QStackedWidget;

namespace corvane {

class ApiClient;
class AuthController;
class ChangePasswordPrompt;
class ConnectCard;
class ConnectionQualityMonitor;
class DeviceCard;
class HomePage;
class MessageBoxes;
class SessionDialogs;
class SessionManager;
class SettingsController;
class SignalingClient;
class StatusLine;
class SystemTrayIcon;
class UpdatePrompt;
class ViewerPage;
class WakeOnLanAction;

/// The program's only top-level window: the home page with this device's identity and the means to
/// connect to a partner, and the viewer page while a partner is being viewed. Coordinates the user,
/// the session and the server connection; what it shows is up to the pages.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// The five pointers are borrowed and must outlive the window.
    MainWindow(AuthController* auth, ApiClient* api, SignalingClient* signaling,
               SessionManager* session, SettingsController* settings, MainWindowPlatform platform);
    ~MainWindow() override;

public Q_SLOTS:
    void onAuthenticated(const QString& clientId);
    void onLoggedOut();
    void onSignalingConnected();
    void onSignalingDisconnected();
    void onConnectClicked();
    void onDisconnectClicked();
    void onSettingsClicked();
    void onSessionHandshakeRequest(const QString& sessionId, const QString& masterClientId,
                                   const QString& purpose);
    void onSessionAutoAccept(const QString& sessionId, const QString& masterClientId,
                             const QString& masterEcdhPublicKey);
    void onSessionStateChanged(corvane::SessionState newState);
    void onSessionError(const QString& error);
    void onFrameDecoded(std::shared_ptr<corvane::DecodedFrame> frame);
    void onStatsUpdated(const corvane::ConnectionStats& stats);
    void onRequestError(const QString& endpoint, int statusCode, const QString& detail);

    void showUpdateBanner(const QString& version, const QString& downloadUrl,
                          const QString& releaseNotes);
    void showUpdateProgress(int percent);
    void showUpdateError(const QString& error);
    /// Starts the installer as a separate process and asks for the program to end.
    void launchInstaller(const QString& installerPath);

Q_SIGNALS:
    void updateRequested(QString downloadUrl);
    /// The user has changed the settings, and they have been stored.
    void settingsChanged();
    /// The program should end: the window was closed for good, the tray's Quit was chosen, or an
    /// installer is waiting for it.
    void quitRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createPages();
    void createTray();
    void connectPages();
    void connectViewer();
    void connectServices();
    bool isRegistered() const;
    void restoreConnectButton();
    void notify(const QString& text,
                QSystemTrayIcon::MessageIcon icon = QSystemTrayIcon::Information);
    void quitByTray();
    void enterSession();
    void enterViewer();
    void returnHome();

    AuthController* const m_auth;
    ApiClient* const m_api;
    SignalingClient* const m_signaling;
    SessionManager* const m_session;
    SettingsController* const m_settings;
    const MainWindowPlatform m_platform;
    MessageBoxes* m_boxes = nullptr;
    SystemTrayIcon* m_tray = nullptr;
    ConnectionQualityMonitor* m_quality = nullptr;
    SessionDialogs* m_dialogs = nullptr;
    WakeOnLanAction* m_wakeOnLan = nullptr;
    ChangePasswordPrompt* m_changePassword = nullptr;
    UpdatePrompt* m_update = nullptr;
    StatusLine* m_status = nullptr;
    QStackedWidget* m_pages = nullptr;
    HomePage* m_home = nullptr;
    ViewerPage* m_viewer = nullptr;
    DeviceCard* m_device = nullptr;
    ConnectCard* m_connect = nullptr;
};

} // namespace corvane
