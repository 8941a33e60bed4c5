#include "app/Wiring.h"

#include "app/settings/SettingsController.h"
#include "network/identity/AuthController.h"
#include "network/updates/UpdateService.h"
#include "session/SessionManager.h"
#include "ui/MainWindow.h"

namespace corvane {

namespace {

void applySettings(SessionManager& session, const SettingsController& settings) {
    session.setCaptureFrameRate(settings.captureFrameRate());
    session.setFrameRateWithInput(settings.frameRateWithInput());
    session.setEncoderQuality(settings.encoderQuality(), settings.encoderSpeed().toStdString());
    session.setClipboardSharing(settings.clipboardSharing());
    session.setMonitorIndex(settings.monitorIndex());
}

} // namespace

void connectUpdates(AuthController& auth, MainWindow& window, UpdateService& updates) {
    QObject::connect(&auth, &AuthController::authenticated, &updates,
                     &UpdateService::checkForUpdates);
    QObject::connect(&updates, &UpdateService::updateAvailable, &window,
                     &MainWindow::showUpdateBanner);
    QObject::connect(&window, &MainWindow::updateRequested, &updates,
                     &UpdateService::downloadUpdate);
    QObject::connect(&updates, &UpdateService::downloadProgress, &window,
                     &MainWindow::showUpdateProgress);
    QObject::connect(&updates, &UpdateService::updateError, &window, &MainWindow::showUpdateError);
    QObject::connect(&updates, &UpdateService::readyToInstall, &window,
                     &MainWindow::launchInstaller);
}

void connectSettings(MainWindow& window, SessionManager& session,
                     const SettingsController& settings) {
    applySettings(session, settings);
    QObject::connect(&window, &MainWindow::settingsChanged, &session,
                     [&] { applySettings(session, settings); });
}

} // namespace corvane
