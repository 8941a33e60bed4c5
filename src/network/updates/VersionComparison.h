#pragma once

#include <QStringView>

namespace corvane {

/// Whether `candidate` is a later version than `current`. Both are numbers joined by dots and are
/// compared number by number; what is missing, or is no decimal integer of 64 bits, counts as 0.
bool isNewerVersion(QStringView candidate, QStringView current);

} // namespace corvane
