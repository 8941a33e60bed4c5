#include "harness/DisplayUser.h"
#include "harness/WaitFor.h"
#include "harness/WineHost.h"
#include "xvfb/XvfbServer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace corvane::harness {
namespace {

using namespace std::chrono_literals;

/// What becomes of a file of the package.
enum class Fate { Missing, Damaged };

struct Loss {
    const char* file;
    Fate fate;
    const char* reason;
};

class MissingLibraryTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!WineHost::obstacle().isEmpty()) {
            GTEST_SKIP() << WineHost::obstacle().toStdString();
        }
    }

    /// The package without what is lost; what is left of it are links.
    static QString packageWith(const Loss& loss, const QString& folder) {
        const QDir complete(WineHost::packageFolder());
        QDir().mkpath(folder);
        for (const QString& name : complete.entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
            if (name != QLatin1String(loss.file)) {
                QFile::link(complete.filePath(name), QDir(folder).filePath(name));
            }
        }
        QFile damaged(QDir(folder).filePath(QLatin1String(loss.file)));
        if (loss.fate == Fate::Damaged && damaged.open(QIODevice::WriteOnly)) {
            damaged.write(QByteArray(5'000, 'x'));
        }
        return folder;
    }

    const test::XvfbServer m_display;
    const QTemporaryDir m_home;
};

TEST_F(MissingLibraryTest, IsNamedInTheLogAndInABox) {
    XDisplay eyes(m_display.display());
    DisplayUser user(eyes);
    for (const Loss& loss :
         {Loss{"libdav1d.dll", Fate::Missing, "libdav1d.dll is missing"},
          Loss{"Corvane.dll", Fate::Missing, "Corvane.dll is missing"},
          // Only others of the package import this one.
          Loss{"libwinpthread-1.dll", Fate::Missing, "libwinpthread-1.dll is missing"},
          Loss{"Qt6Core.dll", Fate::Damaged, "Qt6Core.dll cannot be loaded"}}) {
        SCOPED_TRACE(loss.reason);
        const WineHost host(m_home.path(), m_display.display(),
                            packageWith(loss, m_home.filePath(QLatin1String(loss.reason))));
        QProcess process;
        host.prepare(process, Program::Client, {});
        process.start();
        ASSERT_TRUE(user.sees(QStringLiteral("Corvane"))) << "no box";
        ASSERT_TRUE(user.clickInto(QStringLiteral("Corvane"), {40, 40}));
        eyes.pressKey(kKeyReturn);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), EXIT_FAILURE);

        QFile log(host.logPath());
        ASSERT_TRUE(log.open(QIODevice::ReadOnly));
        const QByteArray line = log.readAll();
        EXPECT_TRUE(line.contains("] [corvane] [error] Launcher: " + QByteArray(loss.reason)))
            << line.toStdString();
    }
}

} // namespace
} // namespace corvane::harness
