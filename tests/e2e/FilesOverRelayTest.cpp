#include "harness/DisplayUser.h"
#include "harness/FileManager.h"
#include "harness/LiveSession.h"
#include "harness/SampleFile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <iterator>

namespace corvane::harness {
namespace {

using namespace std::chrono_literals;

constexpr qint64 kBlock = 65'536;
constexpr qint64 kMebibyte = 1024 * 1024;

struct Sample {
    const char* name;
    qint64 size;
};

// In the order of their names. All but the last can be downloaded, too.
constexpr Sample kSamples[] = {
    {"1-empty", 0},
    {"2 egy bájt.bin", 1},
    {"3 Árvíztűrő tükörfúrógép.txt", kBlock - 1},
    {"4 写真 アルバム.jpg", kBlock},
    {"5 two  spaces 🙂.tar.gz", kBlock + 1},
    {"6 сад.iso", 10 * kMebibyte},
    {"7 300 MB & more.mkv", 300 * kMebibyte},
};

/// The most memory that the process had at once since `forgetPeak`, in KiB.
qint64 peakMemory(const ClientProcess& client) {
    static const QRegularExpression kPeak(QStringLiteral("VmHWM:\\s+(\\d+) kB"));
    QFile status(QStringLiteral("/proc/%1/status").arg(client.processId()));
    return status.open(QIODevice::ReadOnly)
               ? kPeak.match(QString::fromLatin1(status.readAll())).captured(1).toLongLong()
               : 0;
}

bool forgetPeak(const ClientProcess& client) {
    QFile references(QStringLiteral("/proc/%1/clear_refs").arg(client.processId()));
    return references.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           references.write("5") == 1;
}

QString pathIn(const QString& folder, const Sample& sample) {
    return folder + u'/' + QString::fromUtf8(sample.name);
}

bool logs(const ClientProcess& client, const QString& part) {
    return waitFor([&] { return !client.logLines(part).isEmpty(); }, 120s);
}

TEST(FilesOverRelayTest, FilesOfAnySizeAndNameArriveWholeAndBigOnesAreOnlyUploaded) {
    // Freed memory that the address sanitizer holds back is not the program's.
    qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":quarantine_size_mb=16");
    LiveSession live({.viewerDisplay = {}, .stillDesktop = true});
    live.server().misbehaviour().setWithholdIce(true);
    ASSERT_TRUE(live.start() && live.connectToTarget()) << live.error().toStdString();
    ASSERT_EQ(live.transport(), u"relay"_qs);
    const ClientProcess& viewer = live.viewer();
    const QString own = viewer.homePath(QStringLiteral("own"));
    const QString remote = live.target().homePath(QStringLiteral("remote"));
    const QString returned = viewer.homePath(QStringLiteral("returned"));
    for (const QString& folder : {own, remote, returned}) {
        ASSERT_TRUE(QDir().mkpath(folder));
    }
    for (const Sample& sample : kSamples) {
        ASSERT_TRUE(writeSampleFile(pathIn(own, sample), sample.size));
    }

    DisplayUser user(live.viewerDisplay());
    FileManager manager(user, viewer, QStringLiteral("/"));
    ASSERT_TRUE(user.clickInto(QStringLiteral("Corvane - "), {-240, 20}) && manager.open());
    ASSERT_TRUE(manager.openRemoteFolder(remote) && manager.openLocalFolder(own));
    ASSERT_TRUE(manager.selectRow(QLatin1String(kSamples[0].name)));
    for (size_t further = 1; further < std::size(kSamples); ++further) {
        live.viewerDisplay().pressKey(kKeyDown, {kKeyShift});
    }
    ASSERT_TRUE(forgetPeak(viewer));
    const qint64 peakBefore = peakMemory(viewer);
    manager.upload();
    ASSERT_TRUE(
        logs(viewer,
             QStringLiteral("listing for '%1' (%2 entries)").arg(remote).arg(std::size(kSamples))));
    EXPECT_LT(peakMemory(viewer) - peakBefore, 64 * 1024);
    for (const Sample& sample : kSamples) {
        EXPECT_EQ(checksum(pathIn(remote, sample)), checksum(pathIn(own, sample))) << sample.name;
    }

    ASSERT_TRUE(manager.openLocalFolder(viewer.homePath({})) &&
                manager.selectRow(QStringLiteral("returned")) && manager.selectAllRemote());
    manager.download();
    const Sample& tooLarge = *std::rbegin(kSamples);
    EXPECT_TRUE(logs(viewer, QStringLiteral("remote error: File is too large to download: ") +
                                 pathIn(remote, tooLarge)));
    for (const Sample& sample : kSamples) {
        const QString copy = pathIn(returned, sample);
        EXPECT_EQ(checksum(copy), &sample == &tooLarge ? QString() : checksum(pathIn(own, sample)))
            << sample.name;
    }
}

} // namespace
} // namespace corvane::harness
