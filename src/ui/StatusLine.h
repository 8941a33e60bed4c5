#pragma once

#include "session/SessionState.h"

#include <QObject>
#include <QString>

namespace corvane {

class DeviceCard;
class SystemTrayIcon;

/// This device's state at the server.
enum class ServerState {
    LoggedIn,
    Online, ///< partners can connect
    Reconnecting,
    Unavailable, ///< not logged on yet
    LoggedOut,
};

/// The status line in the device card and in the tray's menu. Shows the latest state, whether of
/// the server or of the session.
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
