#include "common/ByteViews.h"
#include "common/ByteWriter.h"
#include "network/updates/UpdateServiceTest.h"

#include <QDir>

#include <unistd.h>

namespace corvane {
namespace {

using test::UpdateServiceTest;
using namespace Qt::StringLiterals;

const std::string kNoInstaller = "updateError|Failed to extract installer from zip.";

template <typename... Fields>
QByteArray littleEndian(Fields... fields) {
    ByteWriter writer;
    (writer.integer(fields), ...);
    return viewOf(writer.take()).toByteArray();
}

const QByteArray kInstaller(2000, 'i');

/// A zip file of the installer only, not compressed.
QByteArray zip(const QByteArray& name) {
    constexpr quint32 kChecksum = 0x505C7282;
    constexpr quint16 kVersion = 20;
    constexpr quint64 kNoFlagsMethodOrTime = 0;
    constexpr quint16 kOneEntry = 1;
    constexpr quint16 kEmpty = 0;
    const auto size = static_cast<quint32>(kInstaller.size());
    const QByteArray common = littleEndian(kVersion, kNoFlagsMethodOrTime, kChecksum, size, size,
                                           static_cast<quint16>(name.size()), kEmpty);
    const QByteArray file = "PK\3\4" + common + name + kInstaller;
    const QByteArray directory =
        "PK\1\2" + littleEndian(kVersion) + common + QByteArray(14, '\0') + name;
    return file + directory + "PK\5\6" + QByteArray(4, '\0') +
           littleEndian(kOneEntry, kOneEntry, static_cast<quint32>(directory.size()),
                        static_cast<quint32>(file.size()), kEmpty);
}

TEST_F(UpdateServiceTest, UnpacksARealArchiveWhateverItsFolderIsCalled) {
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"a 'quoted' $(name); *"_s));
    m_options.folder = path("a 'quoted' $(name); *");
    const std::string unpacked = m_options.folder.toStdString() + "/CorvaneSetup.exe";
    EXPECT_EQ(download(zip("sub/CorvaneSetup.exe")), kNoInstaller);
    EXPECT_EQ(download(zip("../CorvaneSetup.exe")), "readyToInstall|" + unpacked);
    EXPECT_FALSE(QFile::exists(path("CorvaneSetup.exe"))) << "outside of the folder";
    EXPECT_EQ(download(zip("CorvaneSetup.exe")), "readyToInstall|" + unpacked);
    EXPECT_EQ(content("a 'quoted' $(name); */CorvaneSetup.exe"), kInstaller);
    EXPECT_EQ(download(QByteArray(5000, 'z')), kNoInstaller) << "no archive at all";
}

TEST_F(UpdateServiceTest, DoesNotWriteThroughALinkLaidOutForIt) {
    write("precious", "precious");
    ASSERT_TRUE(QFile::link(path("precious"), path("CorvaneSetup.zip")));
    ASSERT_TRUE(QFile::link(path("precious"), path("CorvaneSetup.exe")));
    download(zip("CorvaneSetup.exe"));
    EXPECT_EQ(content("precious"), "precious");
    EXPECT_EQ(content("CorvaneSetup.exe"), kInstaller);
}

TEST_F(UpdateServiceTest, DoesNotHandOverWhatWasLaidOutMeanwhile) {
    write("foreign", "foreign");
    m_options.unpackCommand = [](const QString&, const QString& folder) -> Command {
        return {u"ln"_s, {u"-s"_s, folder + u"/foreign"_s, folder + u"/CorvaneSetup.exe"_s}};
    };
    EXPECT_EQ(download(QByteArray(2000, 'z')), kNoInstaller);
    if (geteuid() == 0) {
        m_options.unpackCommand = [](const QString&, const QString& folder) -> Command {
            return {u"install"_s,
                    {u"-o"_s, u"65534"_s, u"/dev/null"_s, folder + u"/CorvaneSetup.exe"_s}};
        };
        EXPECT_EQ(download(QByteArray(2000, 'z')), kNoInstaller) << "another user's file";
    }
}

TEST_F(UpdateServiceTest, AnUnpackingThatHangsIsGivenUp) {
    m_options.unpackTimeout = std::chrono::milliseconds(200);
    m_options.unpackCommand = [](const QString&, const QString& folder) -> Command {
        return {u"sh"_s,
                {u"-c"_s, uR"(echo half >"$0/CorvaneSetup.exe"; exec sleep 60)"_s, folder}};
    };
    EXPECT_EQ(download(QByteArray(2000, 'z')), kNoInstaller);
}

} // namespace
} // namespace corvane
