#pragma once

#include <QtGlobal>

namespace corvane::compare {

/// The processor time that a process has used so far, in milliseconds; 0 when there is no such
/// process.
double processorMilliseconds(qint64 process);

} // namespace corvane::compare
