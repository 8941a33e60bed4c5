#pragma once

#include <QString>
#include <spdlog/common.h>

namespace corvane {

/// Makes a fresh "CorvaneClient.log" in `folder` (created if missing) the process-wide log. Where
/// the file cannot be written the program goes on without one.
void setUpLogging(const QString& folder, spdlog::level::level_enum level);

} // namespace corvane
