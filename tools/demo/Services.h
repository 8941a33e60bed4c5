#pragma once

namespace corvane::demo {

struct Stage;

/// The acts of a connected session that need no picture; each reports its findings and leaves no
/// window open.

/// Sends a message each way and reads it back from the transcript on the other side.
void exchangeChat(Stage& stage);

/// Copies text on either display and reads it back from the other's clipboard.
void exchangeClipboard(Stage& stage);

} // namespace corvane::demo
