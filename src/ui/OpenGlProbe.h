#pragma once

namespace corvane {

/// Whether this system's OpenGL can carry a QOpenGLWidget; an error line tells where it cannot. Qt
/// does not ask: its first call of a function that the system lacks ends the program. Takes as long
/// as starting the graphics driver does, so ask no sooner than the answer matters. Main thread.
bool isOpenGlUsable();

} // namespace corvane
