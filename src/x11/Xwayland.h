#pragma once

namespace corvane {

class X11Connection;

/// Whether the server is the one that shows X11 programs on a Wayland desktop. Its screen stays
/// black: the desktop puts the programs' windows together elsewhere.
bool isXwayland(const X11Connection& connection);

} // namespace corvane
