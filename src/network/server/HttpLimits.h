#pragma once

#include <QtGlobal>

#include <chrono>

namespace corvane {

// How much the program takes from each server: far more than it needs, and little enough to hold.
inline constexpr qint64 kMaxApiAnswerBytes = 4 * 1024 * 1024;
inline constexpr quint64 kMaxSignalingMessageBytes = 1024 * 1024;
inline constexpr qint64 kMaxPublicAddressBytes = 256;
inline constexpr qint64 kMaxUpdateManifestBytes = 64 * 1024;
inline constexpr qint64 kMaxUpdateArchiveBytes = 256 * 1024 * 1024;

/// How long a server may keep the program waiting without a sign of life.
inline constexpr std::chrono::milliseconds kMaxServerSilence{30'000};

} // namespace corvane
