#pragma once

#include <QString>

namespace corvane {

/// The text of the value "MachineGuid" under the registry key `key`, given with its root's full
/// name and seen as 64-bit programs see it; empty, with a warning in the log, when it is missing.
QString registryMachineGuid(const QString& key);

} // namespace corvane
