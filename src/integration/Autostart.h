#pragma once

namespace corvane {

/// Has the system start this program when the user logs on. True on success. One implementation
/// per platform.
bool installAutostart();

/// Takes `installAutostart` back. False when there was nothing to take back.
bool uninstallAutostart();

} // namespace corvane
