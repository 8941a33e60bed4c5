#include "ByteWriter.h"
#include "UpdateServiceTest.h"

#include <QDir>

namespace corvane {
namespace {

using test::UpdateServiceTest;
using namespace Qt::StringLiterals;

const std::string kNoInstaller = "updateError|Failed to extract installer from zip.";

template <typename... Fields>
QByteArray littleEndian(Fields... fields) {
    ByteWriter writer;
    (writer.integer(fields), ...);
    const ByteVector bytes = writer.take();
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

quint32 crc32(const QByteArray& bytes) {
    quint32 crc = ~0U;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

/// A zip file of one file, not compressed.
QByteArray zip(const QByteArray& name, const QByteArray& content) {
    constexpr quint16 kVersion = 20;
    constexpr quint64 kNoFlagsMethodOrTime = 0;
    constexpr quint16 kOneEntry = 1;
    constexpr quint16 kEmpty = 0;
    const auto size = static_cast<quint32>(content.size());
    const QByteArray common = littleEndian(kVersion, kNoFlagsMethodOrTime, crc32(content), size,
                                           size, static_cast<quint16>(name.size()), kEmpty);
    const QByteArray file = "PK\3\4" + common + name + content;
    const QByteArray directory =
        "PK\1\2" + littleEndian(kVersion) + common + QByteArray(14, '\0') + name;
    return file + directory + "PK\5\6" + QByteArray(4, '\0') +
           littleEndian(kOneEntry, kOneEntry, static_cast<quint32>(directory.size()),
                        static_cast<quint32>(file.size()), kEmpty);
}

TEST_F(UpdateServiceTest, UnpacksARealArchiveWhateverItsFolderIsCalled) {
    const QByteArray installer(2000, 'i');
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"a 'quoted' $(name); *"_s));
    m_options.folder = path("a 'quoted' $(name); *");
    const std::string unpacked = m_options.folder.toStdString() + "/CorvaneSetup.exe";
    EXPECT_EQ(download(zip("sub/CorvaneSetup.exe", installer)), kNoInstaller);
    EXPECT_EQ(download(zip("../CorvaneSetup.exe", installer)), "readyToInstall|" + unpacked);
    EXPECT_FALSE(QFile::exists(path("CorvaneSetup.exe"))) << "outside of the folder";
    EXPECT_EQ(download(zip("CorvaneSetup.exe", installer)), "readyToInstall|" + unpacked);
    EXPECT_EQ(content("a 'quoted' $(name); */CorvaneSetup.exe"), installer);
    EXPECT_EQ(download(QByteArray(5000, 'z')), kNoInstaller) << "no archive at all";
}

TEST_F(UpdateServiceTest, DoesNotWriteThroughALinkLaidOutForIt) {
    write("precious", "precious");
    ASSERT_TRUE(QFile::link(path("precious"), path("CorvaneSetup.zip")));
    ASSERT_TRUE(QFile::link(path("precious"), path("CorvaneSetup.exe")));
    download(zip("CorvaneSetup.exe", QByteArray(2000, 'i')));
    EXPECT_EQ(content("precious"), "precious");
    EXPECT_EQ(content("CorvaneSetup.exe"), QByteArray(2000, 'i'));
}

TEST_F(UpdateServiceTest, AnUnpackingThatHangsIsGivenUp) {
    m_options.unpackTimeout = std::chrono::milliseconds(50);
    m_options.unpackCommand = [](const QString&, const QString&) -> Command {
        return {u"sleep"_s, {u"60"_s}};
    };
    EXPECT_EQ(download(QByteArray(2000, 'z')), kNoInstaller);
}

} // namespace
} // namespace corvane
