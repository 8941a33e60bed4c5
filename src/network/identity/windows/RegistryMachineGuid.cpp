#include "network/identity/windows/RegistryMachineGuid.h"

#include <QSettings>
#include <spdlog/spdlog.h>

namespace corvane {

QString registryMachineGuid(const QString& key) {
    const QSettings registry(key, QSettings::Registry64Format);
    const QString guid = registry.value(QStringLiteral("MachineGuid")).toString();
    if (guid.isEmpty()) {
        spdlog::warn("MachineFingerprint: could not read MachineGuid from registry");
    }
    return guid;
}

} // namespace corvane
