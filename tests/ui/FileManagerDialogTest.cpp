#include "ui/FileManagerDialog.h"
#include "services/FileTransferService.h"
#include "support/Files.h"
#include "support/LogCapture.h"

#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <deque>
#include <memory>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;
using test::contentOf, test::writeFile;

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

/// The dialog in front of a service whose peer is another one, on two folders of this machine.
/// Messages wait until `settle` delivers them.
class FileManagerDialogTest : public ::testing::Test {
protected:
    FileManagerDialogTest() {
        for (const QString& folder : {m_remote, m_local, m_remote + u"/sub dir"_s}) {
            EXPECT_TRUE(QDir().mkpath(folder));
        }
        writeFile(m_remote + u"/a.txt"_s, "remote a");
        writeFile(m_remote + u"/ü &amp; b.bin"_s, m_large);
        writeFile(m_remote + u"/empty"_s, {});
        writeFile(m_local + u"/up 1"_s, m_large);
        writeFile(m_local + u"/up 2"_s, "2");
        m_dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    /// A service that sends to the other one.
    std::unique_ptr<FileTransferService> service(std::unique_ptr<FileTransferService>& other) {
        const auto send = [this, &other](const ByteVector& bytes) {
            m_messages.push_back([&other, bytes] { other->handleMessage(bytes); });
            return true;
        };
        return std::make_unique<FileTransferService>(send, 1 << 20);
    }

    void deliver() {
        const auto message = m_messages.front();
        m_messages.pop_front();
        message();
    }

    void settle() {
        do {
            QCoreApplication::processEvents();
            while (!m_messages.empty()) {
                deliver();
            }
            QCoreApplication::processEvents();
        } while (!m_messages.empty());
    }

    /// Goes to the remote folder by a click on a drive of that name, and to the local one.
    void openFolders() {
        settle();
        m_dialog->onRemoteDirectoryListed(QString(), {{m_remote, true, 0}});
        const QRect drive = m_tree->visualItemRect(m_tree->topLevelItem(0));
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, drive.center());
        QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, {}, drive.center());
        settle();
        selectLocal({u""_s});
    }

    /// Leaves a question open on top of a download, with one more to come.
    void downloadUntilAQuestion() {
        openFolders();
        writeFile(m_local + u"/a.txt"_s, "local a");
        download({u"empty"_s, u"ü &amp; b.bin"_s});
        download({u"a.txt"_s});
        ASSERT_NE(question(), nullptr);
    }

    /// Names, or sizes or types, from top to bottom.
    QStringList column(int column) const {
        QStringList texts;
        for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
            texts << m_tree->topLevelItem(row)->text(column);
        }
        return texts;
    }

    QTreeWidgetItem* remoteItem(const QString& name) const {
        return m_tree->findItems(name, Qt::MatchExactly).first();
    }

    /// Selects files of the local folder; an empty name stands for the folder itself.
    void selectLocal(const QStringList& names) const {
        auto* const view = m_dialog->findChild<QTreeView*>(u"localTree"_s);
        const auto* const model = qobject_cast<QFileSystemModel*>(view->model());
        view->clearSelection();
        for (const QString& name : names) {
            view->selectionModel()->select(model->index(m_local + u'/' + name),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }

    void click(const char* button) const {
        QTest::mouseClick(m_dialog->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    }

    void download(const QStringList& names) const {
        m_tree->clearSelection();
        for (const QString& name : names) {
            remoteItem(name)->setSelected(true);
        }
        click("downloadButton");
    }

    void upload(const QStringList& names) const {
        selectLocal(names);
        click("uploadButton");
    }

    QString path() const { return m_dialog->findChild<QLabel*>(u"remotePathLabel"_s)->text(); }
    QString status() const { return m_dialog->findChild<QLabel*>(u"transferStatus"_s)->text(); }
    int percent() const { return m_dialog->findChild<QProgressBar*>()->value(); }

    /// The open question; null without one.
    QMessageBox* question() const { return m_dialog->findChild<QMessageBox*>(); }

    void answer(QMessageBox::StandardButton button) const {
        ASSERT_NE(question(), nullptr);
        QTest::mouseClick(question()->button(button), Qt::LeftButton);
    }

    const test::LogCapture m_log;
    const QTemporaryDir m_folder;
    const QString m_remote = m_folder.filePath(u"remote"_s);
    const QString m_local = m_folder.filePath(u"local"_s);
    const QByteArray m_large{3 * 65'536 + 1, 'x'};
    std::deque<std::function<void()>> m_messages;
    std::unique_ptr<FileTransferService> m_service = service(m_peer);
    std::unique_ptr<FileTransferService> m_peer = service(m_service);
    std::unique_ptr<FileManagerDialog> m_dialog =
        std::make_unique<FileManagerDialog>(m_service.get());
    QTreeWidget* const m_tree = m_dialog->findChild<QTreeWidget*>();
};

TEST_F(FileManagerDialogTest, BrowsesTheRemoteFolders) {
    EXPECT_EQ(path(), u"<b>Remote: </b>/"_s);
    EXPECT_EQ(status(), u"Loading remote directory..."_s);
    settle();
    EXPECT_EQ(status(), QString::number(m_tree->topLevelItemCount()) + u" items"_s);

    openFolders();
    EXPECT_EQ(status(), u"4 items"_s);
    EXPECT_EQ(column(0), QStringList({u"a.txt"_s, u"empty"_s, u"sub dir"_s, u"ü &amp; b.bin"_s}));
    EXPECT_EQ(column(2), QStringList({u"File"_s, u"File"_s, u"Folder"_s, u"File"_s}));
    m_tree->sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(column(1), QStringList({u"192.0 KB"_s, u"8 B"_s, u""_s, u""_s}));

    m_dialog->activateWindow(); // keys are shortcuts
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
    m_tree->setFocus();
    for (const QString& name : {u"a.txt"_s, u"sub dir"_s}) {
        m_tree->setCurrentItem(remoteItem(name));
        QTest::keyClick(m_tree, Qt::Key_Return);
    }
    EXPECT_EQ(column(0), QStringList());
    QTest::keyClick(m_tree, Qt::Key_Backspace);
    ASSERT_EQ(m_messages.size(), 2U) << "a file is no folder";
    for (int i = 0; i < 3; ++i) {
        deliver(); // the last is the answer about "sub dir", which is no longer shown
    }
    EXPECT_EQ(column(0), QStringList());
    EXPECT_EQ(status(), u"Loading remote directory..."_s);
    settle();
    EXPECT_EQ(status(), u"4 items"_s);

    m_dialog->onRemoteDirectoryListed(m_remote, {{u"<i>&"_s + QString(500, u'x'), true, 0}});
    Q_EMIT m_tree->itemDoubleClicked(m_tree->topLevelItem(0), 0);
    EXPECT_TRUE(path().startsWith(u"<b>Remote: </b>…xxx"));
    settle();
    EXPECT_TRUE(status().startsWith(u"Error: Directory does not exist: "));
    EXPECT_LT(status().size(), 400);
    click("remoteBackButton");
    settle();
    EXPECT_EQ(status(), u"4 items"_s);
    EXPECT_EQ(m_dialog->size(), QSize(1000, 600));
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(FileManagerDialogTest, DownloadsTheSelectedFiles) {
    openFolders();
    download({});
    EXPECT_EQ(status(), u"Select one or more remote files to download."_s);
    download({u"sub dir"_s});
    EXPECT_EQ(status(), u"No files selected (folders are skipped)."_s);

    selectLocal({u"up 2"_s}); // stands for its folder
    download({u"a.txt"_s, u"sub dir"_s, u"ü &amp; b.bin"_s, u"empty"_s});
    EXPECT_EQ(status(), u"Downloading 1 of 3: a.txt"_s);
    EXPECT_EQ(percent(), 0);
    settle();
    EXPECT_EQ(status(), u"All downloads complete."_s);
    EXPECT_EQ(percent(), 100);
    EXPECT_EQ(contentOf(m_local + u"/a.txt"_s), "remote a");
    EXPECT_EQ(contentOf(m_local + u"/ü &amp; b.bin"_s), m_large);
    EXPECT_EQ(contentOf(m_local + u"/empty"_s), "");
}

TEST_F(FileManagerDialogTest, UploadsUnderVisibleProgress) {
    openFolders();
    for (const QStringList& nothing : {QStringList(), QStringList(u""_s)}) {
        upload(nothing);
        EXPECT_EQ(status(), u"Select one or more local files to upload."_s);
    }
    const auto* const bar = new PaintCounter(m_dialog->findChild<QProgressBar*>());
    QStringList seen;
    int barBefore = bar->count;
    m_service->setRoom([&] { // inside the upload, without an event loop
        if (bar->count > barBefore) {
            seen << status();
        }
        barBefore = bar->count;
        return true;
    });
    upload({u"up 1"_s, u"up 2"_s});
    settle();
    const QString first = u"Uploading 1 of 2: up 1"_s;
    EXPECT_EQ(seen, QStringList({first, first, first, first, u"Uploading 2 of 2: up 2"_s}));
    EXPECT_EQ(status(), u"All uploads complete."_s);
    EXPECT_EQ(percent(), 100);
    EXPECT_EQ(contentOf(m_remote + u"/up 1"_s), m_large);
    EXPECT_EQ(contentOf(m_remote + u"/up 2"_s), "2");
}

TEST_F(FileManagerDialogTest, AsksBeforeItOverwrites) {
    openFolders();
    writeFile(m_local + u"/a.txt"_s, "local a");
    writeFile(m_local + u"/empty"_s, "not empty");
    writeFile(m_local + u"/sub dir"_s, "a file here, a folder there");
    for (const auto button : {QMessageBox::NoButton, QMessageBox::No, QMessageBox::Yes}) {
        download({u"a.txt"_s, u"empty"_s, u"ü &amp; b.bin"_s});
        ASSERT_NE(question(), nullptr);
        EXPECT_EQ(question()->text(), u"These files already exist locally and will be "
                                      "overwritten:\na.txt\nempty\n\nContinue?"_s);
        EXPECT_EQ(question()->defaultButton(), question()->button(QMessageBox::No));
        button ? answer(button) : QTest::keyClick(question(), Qt::Key_Escape);
        EXPECT_EQ(m_messages.empty(), button != QMessageBox::Yes);
        settle();
    }
    EXPECT_EQ(contentOf(m_local + u"/a.txt"_s), "remote a");
    EXPECT_EQ(contentOf(m_local + u"/empty"_s), "");

    writeFile(m_local + u"/a.txt"_s, "local a");
    upload({u"sub dir"_s, u"up 2"_s, u"a.txt"_s});
    EXPECT_EQ(question()->text(), u"These files already exist on the remote and will be "
                                  "overwritten:\na.txt\n\nContinue?"_s);
    answer(QMessageBox::No);
    settle();
    EXPECT_FALSE(QFile::exists(m_remote + u"/up 2"_s));
    upload({u"a.txt"_s});
    answer(QMessageBox::Yes);
    settle();
    EXPECT_EQ(contentOf(m_remote + u"/a.txt"_s), "local a");
}

TEST_F(FileManagerDialogTest, StaysInTheChosenFolderWhateverTheNames) {
    openFolders();
    const QStringList names{u"../up 1"_s, m_local + u"/up 1"_s, u"\n2026 forged"_s + QChar(0)};
    QList<FileEntry> entries;
    for (const QString& name : names) {
        entries.append({name, false, 1});
    }
    m_dialog->onRemoteDirectoryListed(m_remote, entries);
    download(names);
    EXPECT_TRUE(m_messages.empty());
    EXPECT_TRUE(m_log.contains("warning|FileManagerDialog: skipping '"));
    EXPECT_FALSE(m_log.contains("\n"));
}

TEST_F(FileManagerDialogTest, OutlivesItsService) {
    downloadUntilAQuestion();
    m_service.reset();
    EXPECT_EQ(status(), u"The session has ended."_s);
    answer(QMessageBox::Yes);
    upload({u"up 2"_s});
    click("remoteBackButton");
    m_messages.clear();
    settle();
    EXPECT_EQ(contentOf(m_local + u"/a.txt"_s), "local a");
    EXPECT_EQ(status(), u"The session has ended."_s);
}

TEST_F(FileManagerDialogTest, MayDieInTheMiddleOfAnything) {
    downloadUntilAQuestion();
    m_dialog.reset();
    settle();
    EXPECT_EQ(contentOf(m_local + u"/empty"_s), ""); // what was asked for arrives
    EXPECT_EQ(contentOf(m_local + u"/a.txt"_s), "local a");
    EXPECT_FALSE(QFile::exists(m_local + u"/ü &amp; b.bin"_s));

    m_dialog = std::make_unique<FileManagerDialog>(m_service.get());
    m_service->setRoom([this] {
        m_dialog.reset();
        return true;
    });
    upload({u"up 1"_s});
    settle();
    EXPECT_EQ(m_dialog, nullptr);
    EXPECT_TRUE(m_log.contains("FileTransfer: upload complete"));
}

} // namespace
} // namespace corvane
