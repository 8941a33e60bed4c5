#pragma once

class QSettings;

namespace corvane {

/// Keeps the stored settings, which hold secrets, from the machine's other users. Call before
/// anything is stored. One implementation per platform.
void keepPrivate(const QSettings& settings);

} // namespace corvane
