#include "network/identity/MachineIdentity.h"

#include "network/identity/windows/RegistryMachineGuid.h"

namespace corvane {

QString machineGuid() {
    return registryMachineGuid(
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography"));
}

} // namespace corvane
