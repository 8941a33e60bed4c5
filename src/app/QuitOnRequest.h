#pragma once

class QCoreApplication;

namespace corvane {

/// Lets the system end the program the way the user does, through the event loop, so that a running
/// session is closed properly. One implementation per platform.
void quitOnSystemRequest(QCoreApplication& application);

} // namespace corvane
