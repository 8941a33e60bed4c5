#include "app/Client.h"

#include "app/ButtonCursorFilter.h"
#include "app/CommandLine.h"
#include "app/CompanionService.h"
#include "app/Logging.h"
#include "app/QuitOnRequest.h"
#include "app/SingleInstanceGuard.h"
#include "app/Theme.h"
#include "app/Translation.h"
#include "app/Wiring.h"
#include "app/settings/DeploymentConstants.h"
#include "app/settings/SettingsController.h"
#include "integration/Autostart.h"
#include "integration/ISystemIntegration.h"
#include "media/CaptureBackendCandidate.h"
#include "media/CaptureObstacle.h"
#include "network/identity/AuthController.h"
#include "network/reachability/HeartbeatService.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalingClient.h"
#include "network/updates/UpdateService.h"
#include "session/SessionManager.h"
#include "ui/ApplicationIcon.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>
#include <spdlog/spdlog.h>

#include <cstdlib>

namespace corvane {

namespace {

int exitCode(bool success) {
    return success ? EXIT_SUCCESS : EXIT_FAILURE;
}

void applyLook(QApplication& application, ButtonCursorFilter& cursorFilter) {
    constexpr int kIconSide = 256;
    application.installEventFilter(&cursorFilter);
    QApplication::setPalette(applicationPalette());
    application.setStyleSheet(applicationStyleSheet());
    QApplication::setWindowIcon(QIcon(drawApplicationIcon(kIconSide)));
}

void announceStart() {
    if (isCompanionServicePresent()) {
        spdlog::info("Corvane service detected — agent mode not yet implemented, continuing in "
                     "standalone mode");
    }
    spdlog::info("Corvane Client starting...");
}

} // namespace

int runClient(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("CorvaneClient"));
    QApplication::setOrganizationName(QStringLiteral("Corvane"));
    // By this a Wayland desktop finds the name and the icon of the windows.
    QApplication::setDesktopFileName(QStringLiteral("example.corvane.Client"));
    QApplication::setApplicationVersion(QString::fromLatin1(deployment::kApplicationVersion));

    const SingleInstanceGuard guard;
    if (!guard.isFirst()) {
        return EXIT_SUCCESS;
    }

    const CommandLine commandLine = parseCommandLine(QApplication::arguments());
    setUpLogging(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation),
                 commandLine.logLevel);
    switch (commandLine.action) {
    case CommandLine::Action::Install:
        return exitCode(installAutostart());
    case CommandLine::Action::Uninstall:
        return exitCode(uninstallAutostart());
    case CommandLine::Action::Run:
        break;
    }

    quitOnSystemRequest(application);
    // With the window in the tray, the last visible window is no sign of the end.
    QApplication::setQuitOnLastWindowClosed(false);
    ButtonCursorFilter cursorFilter;
    applyLook(application, cursorFilter);

    // Each takes the ones before it that it needs; destroyed in reverse order.
    SettingsController settings;
    QTranslator translator;
    installTranslation(translator, interfaceLanguage(settings.language(), QLocale::system().name()),
                       QApplication::applicationDirPath() + QStringLiteral("/translations"));
    announceStart();

    ApiClient api;
    api.setServerUrl(settings.serverBaseUrl());
    SignalingClient signaling;
    HeartbeatService heartbeat(&api);
    AuthController auth(&api, &signaling, &heartbeat, &settings);
    SessionManager session(&api, &signaling);

    const auto integration = createSystemIntegration();
    MainWindow window(&auth, &api, &signaling, &session, &settings,
                      {.integration = integration.get(),
                       .monitors = [] { return capturableMonitors(captureBackendCandidates()); },
                       .captureObstacle = captureObstacle()});
    connectSettings(window, session, settings);
    UpdateService updates;
    connectUpdates(auth, window, updates);
    QObject::connect(
        &window, &MainWindow::quitRequested, &application, [] { QApplication::exit(); },
        Qt::QueuedConnection);
    window.show();
    auth.start();
    return QApplication::exec();
}

} // namespace corvane
