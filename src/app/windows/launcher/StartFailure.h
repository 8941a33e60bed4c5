#pragma once

#include <string>

namespace corvane {

/// Tells the user, in the log and in a message box, why the client cannot start. `reason` is the
/// end of a sentence, such as "x.dll is missing". Returns when the box is closed.
void reportStartFailure(const std::wstring& reason);

} // namespace corvane
