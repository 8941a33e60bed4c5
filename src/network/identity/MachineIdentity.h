#pragma once

#include <QString>

namespace corvane {

/// The identity that the operating system gave this machine when it was installed; empty, with a
/// warning in the log, when it cannot be read. One implementation per platform.
QString machineGuid();

} // namespace corvane
