#pragma once

namespace corvane {

class AuthController;
class MainWindow;
class SessionManager;
class SettingsController;
class UpdateService;

// What the parts of the program tell one another, once they are there. All are borrowed and have to
// live as long as one another; main thread only.

/// Looks for an update as soon as the device is known to the server; the window offers what is
/// found, has it fetched when the user wants it, and starts its installer.
void connectUpdates(AuthController& auth, MainWindow& window, UpdateService& updates);

/// Hands what the user has set to the session manager: now, and after every change in the window.
void connectSettings(MainWindow& window, SessionManager& session,
                     const SettingsController& settings);

} // namespace corvane
