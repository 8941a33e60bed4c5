#pragma once

/// Every colour of the program: those of the theme, and those in the widgets' own style sheets.
namespace corvane::colors {

inline constexpr char kWindow[] = "#1a1a2e";       ///< windows and dialogs
inline constexpr char kRaised[] = "#16213e";       ///< cards, tab panes, headers, message boxes
inline constexpr char kField[] = "#0d1b2a";        ///< input fields, lists, tracks; text on accent
inline constexpr char kFavorites[] = "#0f1a30";    ///< the list on a card
inline constexpr char kButton[] = "#1e2d4a";       ///< buttons; hover on tabs, rows, tool buttons
inline constexpr char kBorder[] = "#2a3a5e";       ///< borders, lines, scroll handles; hover
inline constexpr char kPressed[] = "#3a4a6e";      ///< pressed buttons
inline constexpr char kMuted[] = "#111827";        ///< disabled buttons, alternate rows
inline constexpr char kDeepAccent[] = "#1e3a5e";   ///< update banner, disabled primary buttons
inline constexpr char kAccent[] = "#4da6ff";       ///< focus, selection, primary buttons, links
inline constexpr char kPrimaryHover[] = "#74bcff"; ///< primary buttons under the pointer
inline constexpr char kPrimaryPressed[] = "#2a8fff"; ///< pressed primary buttons
inline constexpr char kIcon[] = "#2266bb";           ///< the program's icon

inline constexpr char kText[] = "#e0e0e0";      ///< normal text
inline constexpr char kSecondary[] = "#8892b0"; ///< captions, tabs, headers, flat and tool buttons
inline constexpr char kDisabled[] = "#4a5568";  ///< disabled text
inline constexpr char kFaint[] = "#666";        ///< times in the chat, state of a transfer
inline constexpr char kPartner[] = "#66bb6a";   ///< the partner's name in the chat
inline constexpr char kAttention[] = "#ffa726"; ///< pairing code, status before the first log-on

inline constexpr char kStatusReady[] = "#007700";
inline constexpr char kStatusInProgress[] = "#0077cc";
inline constexpr char kStatusWaiting[] = "#cc7700"; ///< reconnecting, disconnecting, no server
inline constexpr char kStatusFailed[] = "#cc0000";  ///< disconnected or failed

inline constexpr char kQualityGood[] = "#10b981";
inline constexpr char kQualityFair[] = "#f59e0b";
inline constexpr char kQualityPoor[] = "#ef4444";

} // namespace corvane::colors
