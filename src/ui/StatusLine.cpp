#include "ui/StatusLine.h"

#include "ui/DeviceCard.h"
#include "ui/SystemTrayIcon.h"
#include "ui/UiColors.h"

namespace corvane {

StatusLine::StatusLine(DeviceCard* card, SystemTrayIcon* tray, QObject* parent)
    : QObject(parent), m_card(card), m_tray(tray) {}

void StatusLine::show(ServerState state) {
    switch (state) {
    case ServerState::LoggedIn:
        show(tr("Ready"), colors::kStatusReady);
        break;
    case ServerState::Online:
        show(tr("Online (Ready)"), colors::kStatusReady);
        break;
    case ServerState::Reconnecting:
        show(tr("Reconnecting..."), colors::kStatusWaiting);
        break;
    case ServerState::Unavailable:
        show(tr("Server unavailable — retrying..."), colors::kStatusWaiting);
        break;
    case ServerState::LoggedOut:
        show(tr("Disconnected"), colors::kStatusFailed);
        break;
    }
}

void StatusLine::show(SessionState state) {
    switch (state) {
    case SessionState::Idle:
        show(ServerState::Online);
        break;
    case SessionState::Initiating:
        show(tr("Initiating session..."), colors::kStatusInProgress);
        break;
    case SessionState::Handshaking:
        show(tr("Exchanging keys..."), colors::kStatusInProgress);
        break;
    case SessionState::Connecting:
        show(tr("Establishing transport..."), colors::kStatusInProgress);
        break;
    case SessionState::Connected:
        show(tr("Connected"), colors::kStatusReady);
        break;
    case SessionState::Closing:
        show(tr("Disconnecting..."), colors::kStatusWaiting);
        break;
    case SessionState::Failed:
        show(tr("Session failed"), colors::kStatusFailed);
        break;
    }
}

void StatusLine::show(const QString& text, const char* color) {
    m_card->setStatus(text, QLatin1String(color));
    m_tray->setStatus(text);
}

} // namespace corvane
