#include "network/identity/windows/RegistryMachineGuid.h"
#include "ScratchSettings.h"
#include "network/identity/MachineFingerprint.h"
#include "network/identity/MachineIdentity.h"
#include "support/LogCapture.h"

#include <QSettings>
#include <QUuid>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(RegistryMachineGuid, WarnsOfAMissingOrEmptyValue) {
    const test::ScratchSettings place;
    const test::LogCapture log;
    const QString key = u"HKEY_CURRENT_USER\\SOFTWARE\\Identity"_s;
    const QString guid = u"4c4c4544-0042-3010-8051-b4c04f4d3532"_s;
    QSettings registry(key, QSettings::NativeFormat);
    int warnings = 1;
    EXPECT_EQ(registryMachineGuid(key), QString()) << "no such key";
    for (const QString& value : {guid, QString()}) {
        registry.setValue(u"MachineGuid"_s, value);
        EXPECT_EQ(registryMachineGuid(key), value);
        warnings += value.isEmpty() ? 1 : 0;
        EXPECT_EQ(log.count("warning|MachineFingerprint: could not read MachineGuid from registry"),
                  warnings);
    }
}

TEST(RegistryMachineGuid, TheMachineHasOne) {
    const QString guid = machineGuid();
    EXPECT_FALSE(QUuid::fromString(guid).isNull()) << guid.toStdString();
    EXPECT_EQ(machineGuid(), guid);
    EXPECT_EQ(MachineFingerprint::generate().size(), 64);
}

} // namespace
} // namespace corvane
