#pragma once

#include <QtGlobal>

#include <optional>

namespace corvane {

/// The operating system's smoothed measure of a connected TCP socket's way to its peer and back;
/// nothing where the system keeps none. One implementation per platform.
std::optional<double> socketRoundTripMilliseconds(qintptr socketDescriptor);

/// Bytes that the system has taken from this program and not sent for the first time yet; 0 where
/// it does not tell.
qint64 socketUnsentBytes(qintptr socketDescriptor);

/// Makes the system take no more than it needs to keep the connection busy, so that what is sent
/// next does not wait behind megabytes. Nothing happens where this cannot be set.
void limitSocketBacklog(qintptr socketDescriptor);

} // namespace corvane
