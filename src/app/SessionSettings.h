#pragma once

namespace corvane {

class SessionManager;
class SettingsController;

/// Hands what the user has set to the session manager: at start-up and after every change.
void applySessionSettings(SessionManager& session, const SettingsController& settings);

} // namespace corvane
