#pragma once

/// Colours that the window's own style sheets use.
namespace corvane::colors {

inline constexpr char kCardBackground[] = "#16213e";
inline constexpr char kCardBorder[] = "#2a3a5e";
inline constexpr char kListBackground[] = "#0f1a30";
inline constexpr char kCaption[] = "#8892b0";
inline constexpr char kIdText[] = "#e0e0e0";
inline constexpr char kAccent[] = "#4da6ff"; ///< title, password text, links
inline constexpr char kPairingCode[] = "#ffa726";

inline constexpr char kStatusConnecting[] = "#ffa726";
inline constexpr char kStatusReady[] = "#007700";
inline constexpr char kStatusInProgress[] = "#0077cc";
inline constexpr char kStatusWaiting[] = "#cc7700"; ///< reconnecting, disconnecting, no server
inline constexpr char kStatusFailed[] = "#cc0000";  ///< disconnected or failed

inline constexpr char kQualityGood[] = "#10b981";
inline constexpr char kQualityFair[] = "#f59e0b";
inline constexpr char kQualityPoor[] = "#ef4444";

inline constexpr char kBannerBackground[] = "#1e3a5e";
inline constexpr char kBannerButtonText[] = "#0d1b2a";

} // namespace corvane::colors
