#include "services/FileTransferService.h"

#include <QDir>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(DriveListing, ABareDriveIsItsRootWhereverThisProgramIsOnIt) {
    const QString startedIn = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(u"C:/windows"_s));
    FileTransferService service( // its own partner
        [&service](const ByteVector& message) {
            service.handleMessage(message);
            return true;
        },
        1 << 20);
    QSignalSpy listed(&service, &FileTransferService::directoryListed);
    service.requestListing(u"C:/"_s);
    service.requestListing(u"C:"_s);
    ASSERT_EQ(listed.count(), 2);
    EXPECT_EQ(listed[1][0].toString(), u"C:"_s);
    const auto entries = listed[1][1].value<QList<FileEntry>>();
    EXPECT_EQ(entries, listed[0][1].value<QList<FileEntry>>());
    EXPECT_TRUE(entries.contains(FileEntry{u"windows"_s, true, 0}));
    QDir::setCurrent(startedIn);
}

} // namespace
} // namespace corvane
