#pragma once

namespace corvane {

/// Whether this system's OpenGL is good enough for a QOpenGLWidget; logs an error if not. Qt does
/// not check: its first call of a function that the system lacks ends the program. Takes as long as
/// starting the graphics driver does, so call it no sooner than the answer matters. Main thread.
bool isOpenGlUsable();

} // namespace corvane
