#include "ui/FileManagerDialog.h"

#include "common/ShownNames.h"
#include "services/FileTransferService.h"
#include "services/RemotePath.h"
#include "services/TransferPlan.h"
#include "services/TransferRunner.h"
#include "ui/LocalFilePane.h"
#include "ui/MessageBoxes.h"
#include "ui/RemoteFilePane.h"
#include "ui/TransferStatus.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidgetItem>
#include <QVBoxLayout>

namespace corvane {

FileManagerDialog::FileManagerDialog(FileTransferService* service, QWidget* parent)
    : QDialog(parent), m_runner(new TransferRunner(service, this)),
      m_boxes(new MessageBoxes(this)) {
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

    m_status = new TransferStatus(this);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &FileManagerDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_status);
    layout->addWidget(buttons);

    connectRunner();
    connectService(service);
    openRemoteFolder(QString());
}

QWidget* FileManagerDialog::createTransferButtons() {
    constexpr int kPaneWidth = 100;
    auto* const pane = new QWidget(this);
    constexpr int kMargin = 2;
    auto* const layout = new QVBoxLayout(pane);
    layout->setContentsMargins(kMargin, 0, kMargin, 0);
    layout->addStrut(kPaneWidth - 2 * kMargin); // longer texts widen it
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

void FileManagerDialog::connectRunner() {
    connect(m_runner, &TransferRunner::batchStarted, this, [this] { m_status->showPercent(0); });
    connect(m_runner, &TransferRunner::statusChanged, this, &FileManagerDialog::showResult);
    connect(m_runner, &TransferRunner::transferStarting, this, [this] {
        m_status->showPercent(0);
        repaint(); // the whole dialog: a message box may just have uncovered it
    });
    connect(m_runner, &TransferRunner::uploadEnded, m_status, &TransferStatus::hideSpeed);
    connect(m_runner, &TransferRunner::uploadsComplete, this,
            [this] { m_runner->list(m_remote->path()); });
}

void FileManagerDialog::connectService(const FileTransferService* service) {
    if (!service) {
        return;
    }
    connect(service, &FileTransferService::directoryListed, this,
            &FileManagerDialog::onRemoteDirectoryListed);
    connect(service, &FileTransferService::fileDownloadProgress, this,
            [this](const QString&, int percent) { m_status->showPercent(percent); });
    connect(service, &FileTransferService::fileUploadProgress, this,
            [this](const QString&, int percent) { m_status->showPercent(percent); });
    connect(service, &FileTransferService::fileUploadComplete, this,
            [this] { m_status->showPercent(100); });
    connect(service, &FileTransferService::fileError, this, &FileManagerDialog::onTransferError);
    connect(service, &FileTransferService::transferStats, this,
            [this](qint64, int bytesPerSecond, int secondsLeft) {
                m_status->showSpeed(bytesPerSecond, secondsLeft);
            });
    connect(service, &QObject::destroyed, this, &FileManagerDialog::onServiceGone);
}

void FileManagerDialog::openRemoteFolder(const QString& path) {
    m_remote->openFolder(path);
    m_showsResult = false;
    if (m_runner->hasService()) {
        m_status->showText(tr("Loading remote directory..."));
        m_runner->list(path);
    }
}

void FileManagerDialog::onRemoteDirectoryListed(const QString& path,
                                                const QList<FileEntry>& entries) {
    if (path != m_remote->path()) {
        return;
    }
    m_remote->showEntries(entries);
    if (!m_showsResult) {
        m_status->showText(tr("%1 items").arg(entries.size()));
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
        m_status->showText(tr("Select one or more remote files to download."));
        return;
    }
    const TransferPlan plan = planDownloads(selected, m_remote->path(), m_local->targetFolder());
    if (plan.transfers.isEmpty()) {
        m_status->showText(tr("No files selected (folders are skipped)."));
        return;
    }
    confirm(tr("These files already exist locally and will be overwritten:\n%1\n\n"
               "Continue?"),
            plan.overwritten, [this, files = plan.transfers] { m_runner->download(files); });
}

void FileManagerDialog::onUploadClicked() {
    const QList<QFileInfo> selected = m_local->selectedFiles();
    if (selected.isEmpty()) {
        m_status->showText(tr("Select one or more local files to upload."));
        return;
    }
    const TransferPlan plan = planUploads(selected, m_remote->path(), m_remote->fileNames());
    confirm(tr("These files already exist on the remote and will be overwritten:\n%1\n\n"
               "Continue?"),
            plan.overwritten, [this, files = plan.transfers] { m_runner->upload(files); });
}

void FileManagerDialog::confirm(const QString& question, const QStringList& overwritten,
                                const std::function<void()>& run) {
    if (overwritten.isEmpty()) {
        run();
        return;
    }
    m_boxes->ask(tr("Overwrite?"), question.arg(shownNames(overwritten)), [run](bool yes) {
        if (yes) {
            run();
        }
    });
}

void FileManagerDialog::onTransferError(const QString& error) {
    constexpr qsizetype kMaxError = 300;
    // The runner has already handled the error.
    if (!m_runner->isRunning()) {
        m_status->showPercent(0);
    }
    showResult(tr("Error: %1").arg(shownOnOneLine(error, kMaxError)));
}

void FileManagerDialog::onDownloadComplete(const QString& localPath) {
    m_runner->downloadComplete(localPath);
}

void FileManagerDialog::onUploadComplete() {
    m_runner->uploadComplete();
}

void FileManagerDialog::onServiceGone() {
    m_status->showPercent(0);
    showResult(tr("The session has ended."));
}

void FileManagerDialog::showResult(const QString& text) {
    m_showsResult = true;
    m_status->showText(text);
}

} // namespace corvane
