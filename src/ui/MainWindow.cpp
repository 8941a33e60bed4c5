#include "ui/MainWindow.h"

#include "app/settings/DeploymentConstants.h"
#include "app/settings/SettingsController.h"
#include "common/PartnerId.h"
#include "common/ShownNames.h"
#include "integration/ISystemIntegration.h"
#include "network/identity/AuthController.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalingClient.h"
#include "services/ConnectionQualityMonitor.h"
#include "session/SessionManager.h"
#include "ui/ChangePasswordPrompt.h"
#include "ui/ConnectCard.h"
#include "ui/DeviceCard.h"
#include "ui/HomePage.h"
#include "ui/MessageBoxes.h"
#include "ui/QualityIndicator.h"
#include "ui/SessionDialogs.h"
#include "ui/SettingsDialog.h"
#include "ui/StatusLine.h"
#include "ui/SystemTrayIcon.h"
#include "ui/UpdatePrompt.h"
#include "ui/ViewerPage.h"
#include "ui/WakeOnLanAction.h"
#include "ui/WindowGeometry.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QStackedWidget>
#include <QUrl>
#include <spdlog/spdlog.h>

#include <utility>

namespace corvane {

namespace {

constexpr QSize kHomeMinimum(420, 600);

QString productTitle() {
    return QStringLiteral("Corvane - Remote Access");
}

bool isActive(SessionState state) {
    return state != SessionState::Idle && state != SessionState::Failed;
}

} // namespace

MainWindow::MainWindow(AuthController* auth, ApiClient* api, SignalingClient* signaling,
                       SessionManager* session, SettingsController* settings,
                       MainWindowPlatform platform)
    : m_auth(auth), m_api(api), m_signaling(signaling), m_session(session), m_settings(settings),
      m_platform(std::move(platform)) {
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(productTitle());
    setMinimumSize(kHomeMinimum);
    m_boxes = new MessageBoxes(this);
    m_quality = new ConnectionQualityMonitor(this);
    m_session->setQualityMonitor(m_quality);
    m_dialogs = new SessionDialogs(m_session, m_quality, this);
    m_wakeOnLan = new WakeOnLanAction(m_settings, m_boxes, this);
    m_changePassword = new ChangePasswordPrompt(m_auth, m_boxes, this);
    createPages();
    createTray();
    m_update = new UpdatePrompt(m_home->updateBanner(), m_boxes, this);
    m_status = new StatusLine(m_device, m_tray, this);
    connectPages();
    connectViewer();
    connectServices();
    m_home->setPairingCode(m_auth->pairingCode());
    m_home->setCaptureObstacle(m_platform.captureObstacle);
    m_connect->focusPartnerField();
}

MainWindow::~MainWindow() {
    m_viewer->stopViewing();
    m_session->setQualityMonitor(nullptr);
}

void MainWindow::createPages() {
    m_pages = new QStackedWidget(this);
    m_home = new HomePage(m_settings, m_pages);
    m_viewer = new ViewerPage(m_pages);
    // Its tool bar is wider than the home page may be.
    m_viewer->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_pages->addWidget(m_home);
    m_pages->addWidget(m_viewer);
    setCentralWidget(m_pages);
    m_device = m_home->deviceCard();
    m_connect = m_home->connectCard();
}

void MainWindow::createTray() {
    m_tray = new SystemTrayIcon(this);
    connect(m_tray, &SystemTrayIcon::showWindowRequested, this, [this] {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        show();
        raise();
        activateWindow();
    });
    connect(m_tray, &SystemTrayIcon::disconnectRequested, this, &MainWindow::onDisconnectClicked);
    connect(m_tray, &SystemTrayIcon::quitRequested, this, &MainWindow::quitByTray);
    m_tray->show();
}

void MainWindow::connectPages() {
    connect(m_home, &HomePage::adminPanelRequested, this,
            [] { QDesktopServices::openUrl(QUrl(QString::fromLatin1(deployment::kAdminUrl))); });
    connect(m_home, &HomePage::minimumHeightChanged, this, [this](int height) {
        if (m_pages->currentWidget() == m_home) {
            resize(size().expandedTo({0, height}));
        }
    });
    connect(m_home, &HomePage::settingsRequested, this, &MainWindow::onSettingsClicked);
    connect(m_update, &UpdatePrompt::downloadRequested, this, &MainWindow::updateRequested);
    connect(m_update, &UpdatePrompt::installerStarted, this, &MainWindow::quitRequested,
            Qt::QueuedConnection);
    connect(m_device, &DeviceCard::changePasswordRequested, m_changePassword,
            &ChangePasswordPrompt::ask);
    connect(m_changePassword, &ChangePasswordPrompt::passwordChanged, m_device,
            &DeviceCard::setPassword);
    connect(m_connect, &ConnectCard::connectRequested, this, &MainWindow::onConnectClicked);
    connect(m_connect, &ConnectCard::disconnectRequested, this, &MainWindow::onDisconnectClicked);
    connect(m_connect, &ConnectCard::wakeRequested, this, [this] {
        const QString partner = barePartnerId(m_connect->partnerText());
        if (partner.isEmpty()) {
            m_boxes->warn(tr("Error"), tr("Please enter a partner Client ID."));
        } else {
            m_wakeOnLan->wake(partner);
        }
    });
}

void MainWindow::connectViewer() {
    ViewerToolBar* const bar = m_viewer->toolBar();
    connect(bar, &ViewerToolBar::infoRequested, m_dialogs, &SessionDialogs::openInfo);
    connect(bar, &ViewerToolBar::filesRequested, m_dialogs, &SessionDialogs::openFiles);
    connect(bar, &ViewerToolBar::chatRequested, m_dialogs, &SessionDialogs::openChat);
    connect(m_dialogs, &SessionDialogs::chatWaiting, bar, &ViewerToolBar::setChatWaiting);
    connect(bar, &ViewerToolBar::disconnectRequested, this, &MainWindow::onDisconnectClicked);
    connect(bar, &ViewerToolBar::monitorChosen, m_session, &SessionManager::requestMonitorSwitch);
    connect(m_viewer, &ViewerPage::inputEvent, m_session, &SessionManager::sendInputEvent);
}

void MainWindow::connectServices() {
    connect(m_auth, &AuthController::authenticated, this, &MainWindow::onAuthenticated);
    connect(m_auth, &AuthController::loggedOut, this, &MainWindow::onLoggedOut);
    connect(m_auth, &AuthController::authenticationFailed, this,
            [this] { m_status->show(ServerState::Unavailable); });
    connect(m_auth, &AuthController::pairingCodeChanged, m_home, &HomePage::setPairingCode);
    connect(m_api, &ApiClient::requestError, this, &MainWindow::onRequestError);
    connect(m_signaling, &SignalingClient::connected, this, &MainWindow::onSignalingConnected);
    connect(m_signaling, &SignalingClient::disconnected, this,
            &MainWindow::onSignalingDisconnected);
    connect(m_signaling, &SignalingClient::sessionHandshakeRequest, this,
            &MainWindow::onSessionHandshakeRequest);
    connect(m_signaling, &SignalingClient::sessionAutoAccept, this,
            &MainWindow::onSessionAutoAccept);
    connect(m_session, &SessionManager::stateChanged, this, &MainWindow::onSessionStateChanged);
    connect(m_session, &SessionManager::sessionError, this, &MainWindow::onSessionError);
    // While the partner can still receive: what the user holds down must not stay down there.
    connect(m_session, &SessionManager::sessionEnding, m_viewer, &ViewerPage::stopViewing);
    connect(m_session, &SessionManager::frameDecoded, this, &MainWindow::onFrameDecoded);
    connect(m_quality, &ConnectionQualityMonitor::statsUpdated, this, &MainWindow::onStatsUpdated);
}

void MainWindow::onAuthenticated(const QString& clientId) {
    m_device->setClientId(clientId);
    m_device->setPassword(m_auth->sessionPassword());
    m_home->setPairingCode(m_auth->pairingCode());
    m_connect->setConnectEnabled(true);
    m_connect->setDisconnectEnabled(true);
    m_status->show(ServerState::LoggedIn);
    notify(tr("Ready. Your ID: %1").arg(formatPartnerId(clientId)));
}

void MainWindow::onLoggedOut() {
    m_device->showLoggedOut();
    m_connect->setConnectEnabled(false);
    m_connect->setDisconnectEnabled(false);
    m_status->show(ServerState::LoggedOut);
    returnHome();
}

void MainWindow::onSignalingConnected() {
    m_status->show(ServerState::Online);
}

void MainWindow::onSignalingDisconnected() {
    if (isRegistered()) {
        m_status->show(ServerState::Reconnecting);
    }
}

void MainWindow::onConnectClicked() {
    const QString partner = barePartnerId(m_connect->partnerText().trimmed());
    const QString password = m_connect->password().trimmed();
    if (partner.isEmpty()) {
        m_boxes->warn(tr("Error"), tr("Please enter a partner Client ID."));
        return;
    }
    if (!isPartnerId(partner)) {
        m_boxes->warn(tr("Error"), tr("Partner ID must be exactly 9 digits."));
        return;
    }
    if (password.isEmpty()) {
        m_boxes->warn(tr("Error"), tr("Please enter the partner's password."));
        return;
    }
    m_connect->rememberPartner(partner);
    spdlog::info("Initiating session to partner: {} (with password)", partner.toStdString());
    m_connect->setConnectEnabled(false);
    m_session->initiateSession(partner, password);
}

void MainWindow::onDisconnectClicked() {
    if (m_session->state() != SessionState::Idle) {
        m_session->endSession(QStringLiteral("user_disconnect"));
    }
}

void MainWindow::onSettingsClicked() {
    auto* const dialog =
        new SettingsDialog(m_settings, m_platform.integration, m_platform.monitors(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &SettingsDialog::settingsChanged, this, [this] {
        spdlog::info("Settings updated by user");
        Q_EMIT settingsChanged();
    });
    dialog->open();
}

void MainWindow::onSessionHandshakeRequest(const QString& sessionId, const QString& masterClientId,
                                           const QString& purpose) {
    if (!isVisible()) {
        m_tray->showConnectionRequest(formatPartnerId(masterClientId));
    }
    showNormal();
    activateWindow();
    raise();
    constexpr qsizetype kMaxText = 200;
    const QString text =
        tr("Client %1 wants to connect.\nPurpose: %2\n\nAccept?")
            .arg(shownOnOneLine(formatPartnerId(masterClientId), kMaxText),
                 purpose.isEmpty() ? tr("remote access") : shownOnOneLine(purpose, kMaxText));
    m_boxes->ask(tr("Incoming Connection"), text, [this, sessionId, masterClientId](bool yes) {
        spdlog::info("{} session {} from {}", yes ? "Accepted" : "Rejected",
                     sessionId.toStdString(), masterClientId.toStdString());
        if (yes) {
            m_session->acceptSession(sessionId, masterClientId, QString());
        }
    });
}

void MainWindow::onSessionAutoAccept(const QString& sessionId, const QString& masterClientId,
                                     const QString& masterEcdhPublicKey) {
    spdlog::info("Auto-accepting session {} from {} (password verified)", sessionId.toStdString(),
                 masterClientId.toStdString());
    m_session->acceptSession(sessionId, masterClientId, masterEcdhPublicKey);
    notify(tr("Incoming connection from %1").arg(formatPartnerId(masterClientId)));
}

void MainWindow::onSessionStateChanged(SessionState newState) {
    if (newState != SessionState::Idle || isRegistered()) {
        m_status->show(newState);
    }
    if (newState == SessionState::Connected) {
        enterSession();
    } else if (newState == SessionState::Idle || newState == SessionState::Failed) {
        returnHome();
        restoreConnectButton();
    }
    if (newState == SessionState::Failed) {
        notify(tr("Session failed."), QSystemTrayIcon::Warning);
    }
}

void MainWindow::onSessionError(const QString& error) {
    // A request that is refused at once causes no state change, which would restore the button.
    restoreConnectButton();
    m_boxes->warn(tr("Session Error"), error);
}

void MainWindow::onFrameDecoded(std::shared_ptr<DecodedFrame> frame) {
    if (frame && m_viewer->showFrame(std::move(frame))) {
        m_quality->countFrame();
    }
}

void MainWindow::onStatsUpdated(const ConnectionStats& stats) {
    if (m_pages->currentWidget() != m_viewer) {
        return;
    }
    setWindowTitle(tr("Corvane - %1 [%2 FPS]")
                       .arg(formatPartnerId(m_session->peerClientId()))
                       .arg(static_cast<int>(stats.fps)));
    ViewerToolBar* const bar = m_viewer->toolBar();
    bar->setSummary(m_quality->summaryText());
    bar->qualityIndicator()->showQuality(m_quality->qualityLevel(), stats);
}

void MainWindow::onRequestError(const QString& endpoint, int statusCode, const QString& detail) {
    spdlog::error("API error on {}: {} ({})", endpoint.toStdString(), statusCode,
                  detail.toStdString());
    if (endpoint.contains(u"close") || endpoint.contains(u"complete")) {
        return;
    }
    restoreConnectButton();
    m_status->show(ServerState::Online);
    QString message = tr("Failed to connect. Please try again.");
    if (detail.contains(u"not available") || detail.contains(u"offline")) {
        message = tr("The partner is not available or offline.");
    } else if (detail.contains(u"password")) {
        message = tr("Invalid session password.");
    }
    m_boxes->warn(tr("Connection Error"), message);
}

void MainWindow::showUpdateBanner(const QString& version, const QString& downloadUrl,
                                  const QString&) {
    m_update->announce(version, downloadUrl);
}

void MainWindow::showUpdateProgress(int percent) {
    m_update->showProgress(percent);
}

void MainWindow::showUpdateError(const QString& error) {
    m_update->showError(error);
}

void MainWindow::launchInstaller(const QString& installerPath) {
    m_update->launchInstaller(installerPath);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (isActive(m_session->state())) {
        m_session->endSession(QStringLiteral("user_closed_window"));
        returnHome();
        event->ignore();
    } else if (m_settings->minimizeToTray() && m_tray->isVisible() && m_platform.isTrayThere()) {
        hide();
        notify(tr("Application minimized to system tray."));
        event->ignore();
    } else {
        event->accept();
        Q_EMIT quitRequested();
    }
}

void MainWindow::quitByTray() {
    if (isActive(m_session->state())) {
        m_session->endSession(QStringLiteral("application_quit"));
    }
    Q_EMIT quitRequested();
}

void MainWindow::notify(const QString& text, QSystemTrayIcon::MessageIcon icon) {
    m_tray->showNotification(QStringLiteral("Corvane"), text, icon);
}

bool MainWindow::isRegistered() const {
    return m_auth->isAuthenticated();
}

void MainWindow::restoreConnectButton() {
    m_connect->setConnectEnabled(isRegistered());
}

void MainWindow::enterSession() {
    m_quality->start();
    m_tray->setDisconnectEnabled(true);
    m_dialogs->begin();
    if (m_session->role() == SessionRole::Master) {
        enterViewer();
    } else {
        notify(tr("Remote session active — sharing your screen."));
    }
}

void MainWindow::enterViewer() {
    m_pages->setCurrentWidget(m_viewer);
    fitToViewerPage(*this);
    m_viewer->startViewing();
    setWindowTitle(tr("Corvane - Connected to %1").arg(formatPartnerId(m_session->peerClientId())));
}

void MainWindow::returnHome() {
    m_viewer->stopViewing();
    m_viewer->clearPicture();
    m_quality->stop();
    m_viewer->toolBar()->setSummary({});
    m_viewer->toolBar()->qualityIndicator()->reset();
    m_tray->setDisconnectEnabled(false);
    m_dialogs->end();
    setWindowTitle(productTitle());
    if (m_pages->currentWidget() != m_home) {
        m_pages->setCurrentWidget(m_home);
        m_connect->focusPartnerField();
    }
    fitToHomePage(*this, m_home->sizeHint().height());
}

} // namespace corvane
