#include "MachineIdentity.h"

#include "RegistryMachineGuid.h"

namespace corvane {

QString machineGuid() {
    return registryMachineGuid(
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography"));
}

} // namespace corvane
