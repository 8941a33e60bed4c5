#include "FileManagerDialog.h"

#include "FileTransferService.h"
#include "LocalFilePane.h"
#include "MessageBoxes.h"
#include "RemoteFilePane.h"
#include "RemotePath.h"
#include "ValueFormats.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QSplitter>
#include <QTreeWidgetItem>
#include <QVBoxLayout>
#include <spdlog/spdlog.h>

#include <chrono>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// Progress is painted inside a running upload, but not after every single block of a fast one.
constexpr auto kPaintInterval = 40ms;

/// `text` on one line that fits on the screen.
QString oneLine(const QString& text, qsizetype longest) {
    QString line = text.first(qMin(text.size(), longest)).simplified();
    line.removeIf([](QChar character) { return !character.isPrint(); });
    return line.size() < text.size() && text.size() > longest ? line + QStringLiteral("…") : line;
}

constexpr qsizetype kLongestName = 60; ///< of a file, in characters shown

/// One name per line, few enough that a message box fits on the screen.
QString nameList(const QStringList& names) {
    constexpr qsizetype kMostNames = 12;
    QStringList lines;
    for (const QString& name : names.first(qMin(names.size(), kMostNames))) {
        lines.append(oneLine(name, kLongestName));
    }
    if (names.size() > kMostNames) {
        lines.append(QStringLiteral("… (+%1)").arg(names.size() - kMostNames));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

FileManagerDialog::FileManagerDialog(FileTransferService* service, QWidget* parent)
    : QDialog(parent), m_service(service), m_boxes(new MessageBoxes(this)) {
    setWindowTitle(tr("File Manager"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(1000, 600);

    m_remote = new RemoteFilePane(this);
    connect(m_remote, &RemoteFilePane::itemDoubleClicked, this,
            &FileManagerDialog::onRemoteItemDoubleClicked);
    connect(m_remote, &RemoteFilePane::backClicked, this, &FileManagerDialog::onRemoteBackClicked);
    auto* const splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_remote);
    splitter->addWidget(createTransferButtons());
    m_local = new LocalFilePane(this);
    splitter->addWidget(m_local);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(2, 1);
    splitter->setSizes({400, 100, 400});

    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("transferProgress"));
    m_progress->setAccessibleName(tr("Transfer progress"));
    m_progress->setTextVisible(true);
    m_progress->setRange(0, 100);
    m_progress->setValue(0);
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("transferStatus"));
    m_status->setStyleSheet(QStringLiteral("color: #666; font-size: 11px;"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &FileManagerDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_progress);
    layout->addWidget(m_status);
    layout->addWidget(buttons);

    connectService();
    openRemoteFolder(QString());
}

QWidget* FileManagerDialog::createTransferButtons() {
    constexpr int kPaneWidth = 100;
    auto* const pane = new QWidget(this);
    pane->setMinimumWidth(kPaneWidth);
    auto* const layout = new QVBoxLayout(pane);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->addStretch();
    const auto addButton = [&](const QString& icon, const QString& text, const QString& toolTip) {
        auto* const button = new QPushButton(QIcon(QStringLiteral(":/icons/") + icon), text, pane);
        button->setObjectName(icon + QStringLiteral("Button"));
        button->setToolTip(toolTip);
        button->setAutoDefault(false);
        button->setStyleSheet(QStringLiteral("padding: 6px 4px;"));
        layout->addWidget(button);
        return button;
    };
    connect(addButton(QStringLiteral("download"), tr("Download"),
                      tr("Download selected remote file to local")),
            &QPushButton::clicked, this, &FileManagerDialog::onDownloadClicked);
    connect(addButton(QStringLiteral("upload"), tr("Upload"),
                      tr("Upload selected local file to remote")),
            &QPushButton::clicked, this, &FileManagerDialog::onUploadClicked);
    layout->addStretch();
    return pane;
}

void FileManagerDialog::connectService() {
    if (!m_service) {
        return;
    }
    const FileTransferService* const service = m_service;
    connect(service, &FileTransferService::directoryListed, this,
            &FileManagerDialog::onRemoteDirectoryListed);
    connect(service, &FileTransferService::fileDownloadProgress, this,
            [this](const QString&, int percent) { m_progress->setValue(percent); });
    connect(service, &FileTransferService::fileDownloadComplete, this,
            &FileManagerDialog::onDownloadComplete);
    connect(service, &FileTransferService::fileUploadProgress, this,
            [this](const QString&, int percent) { m_progress->setValue(percent); });
    connect(service, &FileTransferService::fileUploadComplete, this,
            &FileManagerDialog::onUploadComplete);
    connect(service, &FileTransferService::fileError, this, &FileManagerDialog::onTransferError);
    connect(service, &FileTransferService::transferStats, this,
            [this](qint64, int bytesPerSecond, int secondsLeft) {
                showSpeed(bytesPerSecond, secondsLeft);
            });
    connect(service, &QObject::destroyed, this, &FileManagerDialog::onServiceGone);
}

void FileManagerDialog::openRemoteFolder(const QString& path) {
    m_remote->openFolder(path);
    m_showsResult = false;
    if (m_service) {
        showStatus(tr("Loading remote directory..."));
        requestListing();
    }
}

void FileManagerDialog::requestListing() {
    m_unanswered.append(Request::Listing);
    m_service->requestListing(m_remote->path());
}

void FileManagerDialog::onRemoteDirectoryListed(const QString& path,
                                                const QList<FileEntry>& entries) {
    m_unanswered.removeOne(Request::Listing);
    if (path != m_remote->path()) {
        return;
    }
    m_remote->showEntries(entries);
    if (!m_showsResult) {
        showStatus(tr("%1 items").arg(entries.size()));
    }
}

void FileManagerDialog::onRemoteItemDoubleClicked(QTreeWidgetItem* item, int) {
    if (const FileEntry entry = RemoteFilePane::entryOf(item); entry.isDirectory) {
        openRemoteFolder(joinRemotePath(m_remote->path(), entry.name));
    }
}

void FileManagerDialog::onRemoteBackClicked() {
    if (const auto parent = parentRemotePath(m_remote->path())) {
        openRemoteFolder(*parent);
    }
}

void FileManagerDialog::onDownloadClicked() {
    const QList<FileEntry> selected = m_remote->selectedEntries();
    if (selected.isEmpty()) {
        showStatus(tr("Select one or more remote files to download."));
        return;
    }
    const QString folder = m_local->targetFolder();
    QList<FileTransfer> transfers;
    QStringList existing;
    for (const FileEntry& entry : selected) {
        if (entry.isDirectory) {
            continue;
        }
        if (!isPlainFileName(entry.name)) {
            spdlog::warn("FileManagerDialog: '{}' is not a file name, skipped",
                         oneLine(entry.name, 200).toStdString());
            continue;
        }
        const QString localPath = folder + QDir::separator() + entry.name;
        transfers.append({joinRemotePath(m_remote->path(), entry.name), localPath});
        if (QFileInfo::exists(localPath)) {
            existing.append(entry.name);
        }
    }
    if (transfers.isEmpty()) {
        showStatus(tr("No files selected (folders are skipped)."));
        return;
    }
    confirmOverwrite(tr("These files already exist locally and will be overwritten:\n%1\n\n"
                        "Continue?"),
                     existing, [this, transfers] { enqueue(m_downloads, transfers); });
}

void FileManagerDialog::onUploadClicked() {
    const QList<QFileInfo> selected = m_local->selectedFiles();
    if (selected.isEmpty()) {
        showStatus(tr("Select one or more local files to upload."));
        return;
    }
    const QStringList names = m_remote->fileNames();
    const QSet<QString> remoteNames(names.begin(), names.end());
    QList<FileTransfer> transfers;
    QStringList existing;
    for (const QFileInfo& file : selected) {
        transfers.append({joinRemotePath(m_remote->path(), file.fileName()), file.filePath()});
        if (remoteNames.contains(file.fileName())) {
            existing.append(file.fileName());
        }
    }
    confirmOverwrite(tr("These files already exist on the remote and will be overwritten:\n%1\n\n"
                        "Continue?"),
                     existing, [this, transfers] { enqueue(m_uploads, transfers); });
}

void FileManagerDialog::confirmOverwrite(const QString& question, const QStringList& names,
                                         std::function<void()> accepted) {
    if (names.isEmpty()) {
        accepted();
        return;
    }
    m_boxes->ask(tr("Overwrite?"), question.arg(nameList(names)),
                 [accepted = std::move(accepted)](bool yes) {
                     if (yes) {
                         accepted();
                     }
                 });
}

void FileManagerDialog::enqueue(TransferQueue& queue, const QList<FileTransfer>& transfers) {
    if (!m_service) {
        return;
    }
    if (!queue.isRunning()) {
        m_progress->setValue(0);
    }
    queue.append(transfers);
    if (m_downloads.isUnderWay()) {
        showCurrent(tr("Downloading %1 of %2: %3"), m_downloads);
    }
    startNext();
}

void FileManagerDialog::startNext() {
    const bool isBusy = m_downloads.isUnderWay() || m_uploads.isUnderWay();
    if (isBusy || !m_service) {
        return;
    }
    if (m_downloads.remaining() > 0) {
        startDownload();
        return;
    }
    if (m_downloads.isRunning()) {
        m_downloads.clear();
        showResult(tr("All downloads complete."));
    }
    if (m_uploads.remaining() > 0) {
        startUpload();
    } else if (m_uploads.isRunning()) {
        m_uploads.clear();
        showResult(tr("All uploads complete."));
        requestListing();
    }
}

void FileManagerDialog::startNextLater() {
    QMetaObject::invokeMethod(this, &FileManagerDialog::startNext, Qt::QueuedConnection);
}

void FileManagerDialog::startDownload() {
    m_downloads.startNext();
    const FileTransfer transfer = m_downloads.current();
    showCurrent(tr("Downloading %1 of %2: %3"), m_downloads);
    m_unanswered.append(Request::Download);
    m_service->requestDownload(transfer.remotePath, transfer.localPath);
}

void FileManagerDialog::startUpload() {
    m_uploads.startNext();
    const FileTransfer transfer = m_uploads.current();
    showCurrent(tr("Uploading %1 of %2: %3"), m_uploads);
    m_progress->setValue(0);
    repaint(); // all of it: a message box may just have uncovered it
    m_sincePainted.start();

    const QPointer<FileManagerDialog> self(this);
    m_service->uploadFile(transfer.localPath, transfer.remotePath);
    if (!self) {
        return;
    }
    m_progress->resetFormat();
    if (m_uploads.isUnderWay()) {
        dropTransfers();
    }
}

void FileManagerDialog::onDownloadComplete(const QString& localPath) {
    // The partner answers in order: whatever was asked for before has been answered, too.
    m_unanswered.remove(0, m_unanswered.indexOf(Request::Download) + 1);
    if (!m_downloads.isUnderWay() || m_downloads.current().localPath != localPath) {
        return;
    }
    m_downloads.finishCurrent();
    showResult(tr("Downloaded: %1 — %2 remaining")
                   .arg(oneLine(QFileInfo(localPath).fileName(), kLongestName),
                        QString::number(m_downloads.remaining())));
    startNextLater();
}

void FileManagerDialog::onUploadComplete() {
    if (m_uploads.isUnderWay()) {
        m_uploads.finishCurrent();
        m_progress->setValue(m_progress->maximum());
        startNextLater();
    }
}

void FileManagerDialog::onTransferError(const QString& error) {
    const bool isListing = !m_unanswered.isEmpty() && m_unanswered.takeFirst() == Request::Listing;
    if (!isListing || m_uploads.isUnderWay()) {
        dropTransfers();
    }
    constexpr qsizetype kLongestError = 300;
    showResult(tr("Error: %1").arg(oneLine(error, kLongestError)));
}

void FileManagerDialog::onServiceGone() {
    m_unanswered.clear();
    dropTransfers();
    showResult(tr("The session has ended."));
}

void FileManagerDialog::dropTransfers() {
    m_downloads.clear();
    m_uploads.clear();
    m_unanswered.removeAll(Request::Download);
}

void FileManagerDialog::showCurrent(const QString& text, const TransferQueue& queue) {
    const QString name = QFileInfo(queue.current().localPath).fileName();
    showResult(text.arg(QString::number(queue.ordinal()), QString::number(queue.total()),
                        oneLine(name, kLongestName)));
}

void FileManagerDialog::showSpeed(int bytesPerSecond, int secondsLeft) {
    const auto unsignedOf = [](int value) {
        return static_cast<quint64>(qMax(value, 0));
    };
    m_progress->setFormat(tr("%p% — %1/s, %2 left")
                              .arg(formatByteSize(unsignedOf(bytesPerSecond)),
                                   formatDuration(unsignedOf(secondsLeft))));
    if (m_sincePainted.hasExpired(kPaintInterval.count())) {
        paintProgress();
    }
}

void FileManagerDialog::paintProgress() {
    m_progress->repaint();
    m_status->repaint();
    m_sincePainted.start();
}

void FileManagerDialog::showStatus(const QString& text) {
    m_status->setText(text);
}

void FileManagerDialog::showResult(const QString& text) {
    m_showsResult = true;
    m_status->setText(text);
}

} // namespace corvane
