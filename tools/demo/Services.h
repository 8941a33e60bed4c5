#pragma once

namespace corvane::demo {

struct Stage;

/// The acts of a connected session that need no picture; each reports what it found and leaves no
/// window open.

/// A message each way, read back from the transcript on the other side.
void exchangeChat(Stage& stage);

/// Text each way, copied on one display and read back from the other's clipboard.
void exchangeClipboard(Stage& stage);

} // namespace corvane::demo
