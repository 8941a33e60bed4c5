#pragma once

namespace corvane {

/// Whether the companion service answers on this machine. One implementation per platform.
bool isCompanionServicePresent();

} // namespace corvane
