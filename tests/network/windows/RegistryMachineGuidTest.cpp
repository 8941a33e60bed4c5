#include "RegistryMachineGuid.h"
#include "LogCapture.h"
#include "MachineFingerprint.h"
#include "MachineIdentity.h"
#include "ScratchSettings.h"

#include <QSettings>
#include <QUuid>
#include <gtest/gtest.h>

namespace corvane {
namespace {

class RegistryMachineGuidTest : public testing::Test {
protected:
    int warnings() const {
        return m_log.count("warning|MachineFingerprint: could not read MachineGuid from registry");
    }

    const test::ScratchSettings m_place;
    test::LogCapture m_log;
    const QString m_key = QStringLiteral("HKEY_CURRENT_USER\\SOFTWARE\\Identity");
    QSettings m_registry{m_key, QSettings::NativeFormat};
};

TEST_F(RegistryMachineGuidTest, ReadsTheValue) {
    const QString guid = QStringLiteral("4c4c4544-0042-3010-8051-b4c04f4d3532");
    m_registry.setValue(QStringLiteral("MachineGuid"), guid);
    EXPECT_EQ(registryMachineGuid(m_key), guid);
    EXPECT_EQ(warnings(), 0);
}

TEST_F(RegistryMachineGuidTest, WarnsOfAMissingOrEmptyValue) {
    EXPECT_EQ(registryMachineGuid(m_key), QString()) << "no such key";
    EXPECT_EQ(warnings(), 1);
    m_registry.setValue(QStringLiteral("MachineGuid"), QString());
    EXPECT_EQ(registryMachineGuid(m_key), QString()) << "empty";
    EXPECT_EQ(warnings(), 2);
}

TEST_F(RegistryMachineGuidTest, TheMachineHasOne) {
    const QString guid = machineGuid();
    EXPECT_FALSE(QUuid::fromString(guid).isNull()) << guid.toStdString();
    EXPECT_EQ(machineGuid(), guid);
    EXPECT_EQ(MachineFingerprint::generate().size(), 64);
}

} // namespace
} // namespace corvane
