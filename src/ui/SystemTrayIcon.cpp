#include "ui/SystemTrayIcon.h"

#include "ui/ApplicationIcon.h"
#include "ui/UiColors.h"

#include <QMenu>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

constexpr int kIconSide = 64;
constexpr int kBalloonMilliseconds = 5000;

} // namespace

SystemTrayIcon::SystemTrayIcon(QObject* parent)
    : QSystemTrayIcon(parent), m_menu(std::make_unique<QMenu>()) {
    setObjectName(QStringLiteral("systemTrayIcon"));
    setIcon(QIcon(drawApplicationIcon(kIconSide)));
    setToolTip(tr("Corvane - Remote Access"));
    createMenu();
    connect(this, &QSystemTrayIcon::activated, this, &SystemTrayIcon::onActivated);
    spdlog::info("System tray icon initialized");
}

SystemTrayIcon::~SystemTrayIcon() = default;

void SystemTrayIcon::createMenu() {
    const auto add = [this](const char* objectName, const QString& text) {
        QAction* const action = m_menu->addAction(text);
        action->setObjectName(QLatin1String(objectName));
        return action;
    };
    m_menu->setObjectName(QStringLiteral("trayMenu"));
    // The status entry is always disabled, but must be readable.
    m_menu->setStyleSheet(QStringLiteral("QMenu::item:disabled { color: %1; }")
                              .arg(QLatin1String(colors::kSecondary)));
    const QAction* const show = add("trayShowAction", tr("Show"));
    m_status = add("trayStatusAction", tr("Status: Disconnected"));
    m_status->setEnabled(false);
    m_menu->addSeparator();
    m_disconnect = add("trayDisconnectAction", tr("Disconnect"));
    m_disconnect->setEnabled(false);
    const QAction* const quit = add("trayQuitAction", tr("Quit"));

    connect(show, &QAction::triggered, this, &SystemTrayIcon::showWindowRequested);
    connect(m_disconnect, &QAction::triggered, this, &SystemTrayIcon::disconnectRequested);
    connect(quit, &QAction::triggered, this, &SystemTrayIcon::quitRequested);
    setContextMenu(m_menu.get());
}

void SystemTrayIcon::setStatus(const QString& text) {
    m_status->setText(text);
    spdlog::debug("Tray status updated: {}", text.toStdString());
}

void SystemTrayIcon::setDisconnectEnabled(bool enabled) {
    m_disconnect->setEnabled(enabled);
    spdlog::debug("Tray disconnect action enabled: {}", enabled);
}

void SystemTrayIcon::showNotification(const QString& title, const QString& text, MessageIcon kind) {
    if (!hasBalloons()) {
        spdlog::warn("System tray does not support balloon notifications");
        return;
    }
    showBalloon(title, text, kind, kBalloonMilliseconds);
    spdlog::info("Tray notification shown: {} - {}", title.toStdString(), text.toStdString());
}

void SystemTrayIcon::showConnectionRequest(const QString& clientId) {
    showNotification(tr("Incoming Connection"),
                     tr("Client %1 is requesting a remote connection.").arg(clientId), Information);
}

bool SystemTrayIcon::hasBalloons() const {
    return supportsMessages();
}

void SystemTrayIcon::showBalloon(const QString& title, const QString& text, MessageIcon kind,
                                 int milliseconds) {
    showMessage(title, text, kind, milliseconds);
}

void SystemTrayIcon::onActivated(ActivationReason reason) {
    if (reason == DoubleClick) {
        spdlog::info("Tray icon double-clicked, requesting window show");
        Q_EMIT showWindowRequested();
    }
}

} // namespace corvane
