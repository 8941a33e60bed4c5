#include "network/identity/MachineFingerprint.h"

#include "network/identity/MachineIdentity.h"

#include <QCryptographicHash>
#include <spdlog/spdlog.h>

namespace corvane {

QString MachineFingerprint::generate() {
    return of(machineGuid());
}

QString MachineFingerprint::of(const QString& guid) {
    if (guid.isEmpty()) {
        return {};
    }
    // The suffix keeps products that hash the same identity apart.
    const QByteArray digest =
        QCryptographicHash::hash(guid.toUtf8() + "Corvane", QCryptographicHash::Sha256);
    const QString fingerprint = QString::fromLatin1(digest.toHex());
    spdlog::debug("MachineFingerprint: generated ({} chars)", fingerprint.size());
    return fingerprint;
}

} // namespace corvane
