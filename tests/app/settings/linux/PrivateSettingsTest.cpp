#include "ScratchSettings.h"
#include "app/settings/SettingsController.h"

#include <QFile>
#include <QSettings>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(PrivateSettings, NoOtherUserReadsTheSecrets) {
    const mode_t previous = umask(022);
    const test::ScratchSettings place;
    const QString file =
        QSettings(QSettings::NativeFormat, QSettings::UserScope, u"Corvane"_s, u"CorvaneClient"_s)
            .fileName();
    const auto modeAfterStoring = [&file](const QString& secret) {
        SettingsController().setDeviceSecret(secret);
        EXPECT_EQ(SettingsController().deviceSecret(), secret);
        struct stat status {};
        EXPECT_EQ(stat(QFile::encodeName(file), &status), 0);
        return status.st_mode & 0777;
    };
    EXPECT_EQ(modeAfterStoring(u"first"_s), 0600U);
    ASSERT_EQ(chmod(QFile::encodeName(file), 0644), 0);
    EXPECT_EQ(modeAfterStoring(u"second"_s), 0600U) << "stored by an earlier version";
    umask(previous);
}

} // namespace
} // namespace corvane
