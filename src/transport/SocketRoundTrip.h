#pragma once

#include <QtGlobal>

#include <optional>

namespace corvane {

/// The operating system's smoothed measure of a connected TCP socket's way to its peer and back;
/// nothing where the system keeps none. One implementation per platform.
std::optional<double> socketRoundTripMilliseconds(qintptr socketDescriptor);

} // namespace corvane
