#include "network/identity/MachineIdentity.h"

#include <QFile>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <cctype>

namespace corvane {

namespace {

constexpr qsizetype kMachineIdLength = 32;

// Before its first start, a system image may hold a placeholder instead of an ID, which would be
// the same on many machines.
bool isMachineId(const QByteArray& text) {
    return text.size() == kMachineIdLength && std::all_of(text.begin(), text.end(), [](char c) {
               return std::isxdigit(static_cast<unsigned char>(c)) != 0;
           });
}

} // namespace

QString machineGuid() {
    for (const char* path : {"/etc/machine-id", "/var/lib/dbus/machine-id"}) {
        QFile file(QString::fromLatin1(path));
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        const QByteArray id = file.read(kMachineIdLength + 1).trimmed();
        if (isMachineId(id)) {
            return QString::fromLatin1(id);
        }
    }
    spdlog::warn("MachineFingerprint: could not read a machine ID from /etc/machine-id");
    return {};
}

} // namespace corvane
