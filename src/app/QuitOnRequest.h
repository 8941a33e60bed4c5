#pragma once

class QCoreApplication;

namespace corvane {

/// Has the event loop end when the system asks the program to, so that everything is destroyed in
/// order and a running session is closed properly. One implementation per platform.
void quitOnSystemRequest(QCoreApplication& application);

} // namespace corvane
