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
#include <QVBoxLayout>
#include <spdlog/spdlog.h>

#include <algorithm>

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

/// One name per line, few enough that a message box fits on the screen.
QString nameList(const QStringList& names) {
    constexpr qsizetype kMostNames = 12;
    constexpr qsizetype kLongestName = 60;
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
        auto* const button =
            new QPushButton(QIcon(QStringLiteral(":/icons/") + icon), text, pane);
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
    startNext();
}

void FileManagerDialog::startNext() {
    if (m_downloads.isUnderWay() || m_uploads.isUnderWay() || !m_service) {
        return;
    }
    if (m_downloads.isRunning()) {
        startDownload();
    } 
}

} // namespace corvane
