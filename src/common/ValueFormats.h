#pragma once

#include <QString>

namespace corvane {

/// "512 B", "1.5 KB", "1.0 MB" or "2.00 GB", in multiples of 1024.
QString formatByteSize(quint64 bytes);

/// "hours:minutes:seconds", each at least two digits; the hours are not capped.
QString formatDuration(quint64 seconds);

} // namespace corvane
