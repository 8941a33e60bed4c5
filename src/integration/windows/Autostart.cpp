#include "integration/Autostart.h"

#include "integration/windows/LogonTask.h"

#include <QCoreApplication>

namespace corvane {

bool installAutostart() {
    return LogonTask().create(QCoreApplication::applicationFilePath());
}

bool uninstallAutostart() {
    return LogonTask().remove();
}

} // namespace corvane
