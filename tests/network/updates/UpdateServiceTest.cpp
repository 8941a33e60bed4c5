#include "UpdateServiceTest.h"
#include "network/updates/VersionComparison.h"

#include <QSignalSpy>

#include <algorithm>

namespace corvane {
namespace {

using test::CannedServer;
using test::copied;
using test::httpAnswer;
using test::nothing;
using test::UpdateServiceTest;
using namespace Qt::StringLiterals;

const std::string kTooSmall = "updateError|Downloaded file is too small — update aborted.";
const std::string kNoInstaller = "updateError|Failed to extract installer from zip.";
const std::string kCannotWrite = "updateError|Cannot write to temp directory.";

TEST(VersionComparison, ComparesNumberByNumber) {
    const auto isNewer = [](const char* candidate, const char* current) {
        return isNewerVersion(QString::fromLatin1(candidate), QString::fromLatin1(current));
    };
    const std::pair<const char*, const char*> newerFirst[] = {
        {"1.32", "1.4"},   {"1.32.1", "1.32"}, {"2", "1.32"},         {"01.033", "1.32"},
        {"1..1", "1.0.0"}, {"0", "-1"},        {"1.32", "1.33-beta"}, {"4294967297.0", "1.32"}};
    for (const auto& [newer, older] : newerFirst) {
        EXPECT_TRUE(isNewer(newer, older)) << newer << " after " << older;
        EXPECT_FALSE(isNewer(older, newer)) << older << " before " << newer;
    }
    for (const auto& [one, other] : {std::pair{"1.32", "1.32.0"}, {"...", ""}}) {
        EXPECT_FALSE(isNewer(one, other) || isNewer(other, one)) << one << " is " << other;
    }
    EXPECT_TRUE(isNewer("9223372036854775807", "-9223372036854775808"));
    EXPECT_FALSE(isNewer("99999999999999999999999", "1.32"));
}

TEST_F(UpdateServiceTest, OnlyANewerVersionIsAnnounced) {
    const std::string notNewer = "info|Update check: current=1.32, latest=";
    const std::string failed = "warning|Update check failed: ";
    const std::tuple<QByteArray, std::string, std::string> cases[] = {
        {httpAnswer(R"({"version":"2","download_url":7})"), "info|Update available: v2",
         "updateAvailable|2||"},
        {httpAnswer(R"({"version":"1.32","download_url":"http://x/y"})"), notNewer + "1.32", ""},
        {httpAnswer(R"({"version":133})"), notNewer, ""},
        {httpAnswer("[]"), notNewer, ""},
        {httpAnswer("<html>"), "warning|Update manifest parse error: ", ""},
        {httpAnswer(R"({"version":"1.33"})" + QByteArray(65536, ' ')),
         failed + "The server sends more than 65536 bytes.", ""},
        {"HTTP/1.1 500 Broken\r\n\r\n{\"version\":\"2\"}", failed, ""},
    };
    for (const auto& [answer, lastLine, announcement] : cases) {
        const CannedServer server(answer);
        m_options.manifestUrl = server.url();
        UpdateService service(nullptr, m_options);
        test::SignalLines lines(service, &UpdateService::updateAvailable);
        m_log.clear();
        service.checkForUpdates();
        EXPECT_TRUE(QTest::qWaitFor(
            [&, &last = lastLine] { return m_log.lines().back().starts_with(last); }));
        EXPECT_EQ(lines.isEmpty() ? "" : lines.next(), announcement);
        EXPECT_EQ(service.latestVersion().isEmpty(), announcement.empty());
    }
}

TEST_F(UpdateServiceTest, StoresUnpacksAndHandsOverTheInstaller) {
    m_options.unpackCommand = copied;
    write("CorvaneSetup.zip", "of an earlier run");
    write("CorvaneSetup.exe", "of an earlier run");
    const QByteArray archive(3'000'000, 'z');
    const CannedServer server(httpAnswer(archive));
    UpdateService service(nullptr, m_options);
    QSignalSpy progress(&service, &UpdateService::downloadProgress);
    test::SignalLines lines(service, &UpdateService::readyToInstall, &UpdateService::updateError);
    for (int run = 0; run < 2; ++run) {
        m_log.clear();
        progress.clear();
        service.downloadUpdate(server.url().toString());
        service.downloadUpdate(server.url().toString());
        EXPECT_EQ(lines.next(), "readyToInstall|" + installerPath());
        EXPECT_TRUE(content("CorvaneSetup.exe") == archive);
        ASSERT_FALSE(progress.isEmpty());
        EXPECT_TRUE(std::ranges::is_sorted(
            progress, {}, [](const QVariantList& arguments) { return arguments[0].toInt(); }));
        EXPECT_EQ(progress.last(), QVariantList{100});
        EXPECT_TRUE(m_log.once("debug|UpdateService: a download is under way already"));
    }
    EXPECT_TRUE(lines.isEmpty());

    const CannedServer unmeasured("HTTP/1.1 200 OK\r\n\r\n" + archive);
    progress.clear();
    service.downloadUpdate(unmeasured.url().toString());
    EXPECT_EQ(lines.next(), "readyToInstall|" + installerPath());
    EXPECT_EQ(progress.count(QVariantList{100}), progress.count()) << "known at the end only";
}

TEST_F(UpdateServiceTest, RefusesWhatIsTooSmallTooLargeOrCutShort) {
    m_options.unpackCommand = copied;
    EXPECT_EQ(download(QByteArray(1023, 'z')), kTooSmall);
    EXPECT_FALSE(QFile::exists(path("CorvaneSetup.zip")));
    EXPECT_EQ(download(QByteArray(1024, 'z')), "readyToInstall|" + installerPath());

    const CannedServer huge("HTTP/1.1 200 OK\r\nContent-Length: 268435457\r\n\r\nz");
    EXPECT_EQ(downloadFrom(huge.url().toString()),
              "updateError|The server sends more than 268435456 bytes.");
    const CannedServer cutShort("HTTP/1.1 200 OK\r\nContent-Length: 3000\r\n\r\n" +
                                QByteArray(2000, 'z'));
    EXPECT_EQ(downloadFrom(cutShort.url().toString()), "updateError|Connection closed");
    EXPECT_FALSE(QFile::exists(path("CorvaneSetup.zip"))) << "half an archive is left behind";
}

TEST_F(UpdateServiceTest, NoInstallerIsAnError) {
    const QByteArray archive(2000, 'z');
    m_options.unpackCommand = nothing;
    write("CorvaneSetup.exe", "of an earlier run");
    EXPECT_EQ(download(archive), kNoInstaller);
    m_options.unpackCommand = [](const QString&, const QString&) -> Command {
        return {u"no-such-program"_s, {}};
    };
    EXPECT_EQ(download(archive), kNoInstaller);
    EXPECT_TRUE(m_log.contains("warning|UpdateService: cannot run no-such-program: "));

    QDir(m_folder.path()).mkpath(u"CorvaneSetup.exe/in the way"_s);
    EXPECT_EQ(download(archive), kCannotWrite);
    m_options.folder = path("no/such/folder");
    EXPECT_EQ(download(archive), kCannotWrite);
}

} // namespace
} // namespace corvane
