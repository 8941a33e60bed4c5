#pragma once

#include "session/SessionState.h"

#include <QObject>
#include <QString>

namespace corvane {

class DeviceCard;
class SystemTrayIcon;

/// How this device stands with the server.
enum class ServerState {
    LoggedIn,
    Online, ///< reachable for partners
    Reconnecting,
    Unavailable, ///< no log-on yet
    LoggedOut,
};

/// The one line that says how things stand, in the device card and in the tray's menu: what was
/// shown last, be it about the server or about the session.
class StatusLine : public QObject {
    Q_OBJECT

public:
    /// Both are borrowed.
    StatusLine(DeviceCard* card, SystemTrayIcon* tray, QObject* parent = nullptr);

    void show(ServerState state);

    /// `Idle` shows as `ServerState::Online`.
    void show(SessionState state);

private:
    void show(const QString& text, const char* color);

    DeviceCard* const m_card;
    SystemTrayIcon* const m_tray;
};

} // namespace corvane
