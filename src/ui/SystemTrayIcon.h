#pragma once

#include <QSystemTrayIcon>

#include <memory>

class QAction;
class QMenu;

namespace corvane {

/// The program's place in the desktop's tray: reachable while its window is hidden, with the status
/// in its menu and balloons for what happens meanwhile. Only emits signals; the main window decides
/// what they do. Starts hidden, with the session disconnected.
///
/// Object names: "trayMenu" and, in its order, "trayShowAction", "trayStatusAction",
/// "trayDisconnectAction" and "trayQuitAction".
class SystemTrayIcon : public QSystemTrayIcon {
    Q_OBJECT

public:
    explicit SystemTrayIcon(QObject* parent = nullptr);
    ~SystemTrayIcon() override;

    /// Shows `text`, unchanged, as the status in the menu.
    void setStatus(const QString& text);

    void setDisconnectEnabled(bool enabled);

    /// Shows a balloon for five seconds if the desktop supports them; otherwise only logs.
    void showNotification(const QString& title, const QString& text, MessageIcon kind);

    /// Announces that the client with this ID, shown as given, wants to connect.
    void showConnectionRequest(const QString& clientId);

Q_SIGNALS:
    void showWindowRequested();
    void disconnectRequested();
    void quitRequested();

protected:
    /// The desktop's balloons; tests override both.
    virtual bool hasBalloons() const;
    virtual void showBalloon(const QString& title, const QString& text, MessageIcon kind,
                             int milliseconds);

private:
    void createMenu();
    void onActivated(ActivationReason reason);

    std::unique_ptr<QMenu> m_menu;
    QAction* m_status = nullptr;
    QAction* m_disconnect = nullptr;
};

} // namespace corvane
