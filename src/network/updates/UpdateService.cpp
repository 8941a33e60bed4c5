#include "network/updates/UpdateService.h"

#include "common/JsonFields.h"
#include "network/server/HttpFetch.h"
#include "network/updates/VersionComparison.h"

#include <QFileInfo>
#include <spdlog/spdlog.h>

#include <utility>

namespace corvane {

namespace {

constexpr qsizetype kMinArchiveBytes = 1024;

} // namespace

UpdateService::UpdateService(QObject* parent, UpdateOptions options)
    : QObject(parent), m_options(std::move(options)),
      m_archive(m_options.folder + QStringLiteral("/CorvaneSetup.zip")),
      m_installerPath(m_options.folder + QStringLiteral("/CorvaneSetup.exe")) {
    m_unpacking.setStandardInputFile(QProcess::nullDevice());
    m_unpacking.setStandardOutputFile(QProcess::nullDevice());
    m_unpacking.setStandardErrorFile(QProcess::nullDevice());
    m_unpackTimer.setSingleShot(true);
    connect(&m_unpacking, &QProcess::finished, this, &UpdateService::onUnpacked);
    connect(&m_unpacking, &QProcess::errorOccurred, this, &UpdateService::onUnpackError);
    connect(&m_unpackTimer, &QTimer::timeout, &m_unpacking, &QProcess::kill);
}

UpdateService::~UpdateService() {
    m_unpacking.disconnect(this);
    if (m_archive.isOpen()) {
        m_archive.remove();
    }
}

void UpdateService::checkForUpdates() {
    spdlog::info("Checking for updates at {}", m_options.manifestUrl.toString().toStdString());
    auto* const fetch =
        new HttpFetch(m_network, m_options.manifestUrl, kMaxUpdateManifestBytes, this);
    connect(fetch, &HttpFetch::finished, this, [this, fetch](const QString& error) {
        if (error.isEmpty()) {
            onManifest(fetch->take());
        } else {
            spdlog::warn("Update check failed: {}", error.toStdString());
        }
    });
}

void UpdateService::onManifest(const QByteArray& text) {
    std::string error;
    const nlohmann::json manifest =
        parseJson({text.constData(), static_cast<size_t>(text.size())}, &error);
    if (manifest.is_discarded()) {
        spdlog::warn("Update manifest parse error: {}", error);
        return;
    }
    const QString current = QString::fromLatin1(deployment::kApplicationVersion);
    const QString version = jsonStringOrEmpty(manifest, "version");
    spdlog::info("Update check: current={}, latest={}", current.toStdString(),
                 version.toStdString());
    if (version.isEmpty() || !isNewerVersion(version, current)) {
        return;
    }
    m_latestVersion = version;
    m_downloadUrl = jsonStringOrEmpty(manifest, "download_url");
    m_releaseNotes = jsonStringOrEmpty(manifest, "release_notes");
    spdlog::info("Update available: v{}", version.toStdString());
    Q_EMIT updateAvailable(m_latestVersion, m_downloadUrl, m_releaseNotes);
}

void UpdateService::downloadUpdate(const QString& url) {
    if (m_busy) {
        spdlog::debug("UpdateService: a download is under way already");
        return;
    }
    m_busy = true;
    m_unwritten.clear();
    spdlog::info("Downloading update from {}", url.toStdString());
    m_download = new HttpFetch(m_network, QUrl(url), kMaxUpdateArchiveBytes, this);
    connect(m_download, &HttpFetch::progress, this, &UpdateService::onDownloadProgress);
    connect(m_download, &HttpFetch::arrived, this, &UpdateService::onDownloadArrived);
    connect(m_download, &HttpFetch::finished, this, &UpdateService::onDownloadFinished);
}

void UpdateService::onDownloadProgress(qint64 receivedBytes, qint64 totalBytes) {
    if (totalBytes > 0) {
        Q_EMIT downloadProgress(static_cast<int>(receivedBytes * 100 / totalBytes));
    }
}

// Written as it arrives, but not before there is enough of it to be an archive.
void UpdateService::onDownloadArrived() {
    m_unwritten += m_download->take();
    const bool enough = m_archive.isOpen() || m_unwritten.size() >= kMinArchiveBytes;
    if (enough && !writeArchive()) {
        const QString error = tr("Cannot write to temp directory.");
        m_download->disconnect(this);
        m_download->giveUp(error);
        fail(error);
    }
}

bool UpdateService::writeArchive() {
    if (!m_archive.isOpen() && !openArchive()) {
        return false;
    }
    const bool written = m_archive.write(m_unwritten) == m_unwritten.size();
    m_unwritten.clear();
    return written;
}

// Other users may be able to write to the folder, so a file that is already there is never reused.
bool UpdateService::openArchive() {
    m_archive.remove();
    return m_archive.open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

/// Another user may lay out a file, or a link to one, while the archive is being unpacked. What is
/// this user's own, as the archive is, nobody can replace any more.
bool UpdateService::isInstallerOwn() const {
    const QFileInfo installer(m_installerPath);
    return installer.isFile() && !installer.isSymLink() &&
           installer.ownerId() == QFileInfo(m_archive.fileName()).ownerId();
}

/// So that what lies there after unpacking is the archive's. False when it cannot be removed.
bool UpdateService::removeInstaller() {
    QFile::remove(m_installerPath);
    return !QFileInfo::exists(m_installerPath);
}

void UpdateService::onDownloadFinished(const QString& error) {
    if (!error.isEmpty()) {
        spdlog::error("Update download failed: {}", error.toStdString());
        fail(error);
    } else if (!m_archive.isOpen()) {
        fail(tr("Downloaded file is too small — update aborted."));
    } else if (!m_archive.flush()) {
        fail(tr("Cannot write to temp directory."));
    } else {
        m_archive.close();
        spdlog::info("Update downloaded to {}", m_archive.fileName().toStdString());
        unpack();
    }
}

void UpdateService::unpack() {
    if (!removeInstaller()) {
        fail(tr("Cannot write to temp directory."));
        return;
    }
    const Command command = m_options.unpackCommand(m_archive.fileName(), m_options.folder);
    m_unpackTimer.start(m_options.unpackTimeout);
    m_unpacking.start(command.program, command.arguments);
}

void UpdateService::onUnpackError(QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) {
        spdlog::warn("UpdateService: cannot run {}: {}", m_unpacking.program().toStdString(),
                     m_unpacking.errorString().toStdString());
        onUnpacked();
    }
}

void UpdateService::onUnpacked() {
    const bool inTime = m_unpackTimer.isActive();
    m_unpackTimer.stop();
    if (!inTime) {
        removeInstaller(); // it may have been half written
    }
    if (!isInstallerOwn()) {
        fail(tr("Failed to extract installer from zip."));
        return;
    }
    m_busy = false;
    spdlog::info("Installer extracted to {}", m_installerPath.toStdString());
    Q_EMIT readyToInstall(m_installerPath);
}

void UpdateService::fail(const QString& error) {
    m_busy = false;
    if (m_archive.isOpen()) {
        m_archive.remove();
    }
    Q_EMIT updateError(error);
}

} // namespace corvane
