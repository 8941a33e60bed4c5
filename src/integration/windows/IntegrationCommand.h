#pragma once

#include "integration/IntegrationChoice.h"

#include <QString>

namespace corvane {

/// The line for the Windows command interpreter that makes the log-on task and the companion
/// service as chosen. `program` is this program's absolute path, `folder` the one that holds the
/// service's.
QString integrationCommandLine(const IntegrationChoice& choice, const QString& program,
                               const QString& folder);

} // namespace corvane
