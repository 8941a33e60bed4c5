#pragma once

#include "app/settings/DeploymentConstants.h"
#include "network/updates/UnpackCommand.h"

#include <QDir>
#include <QFile>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>

namespace corvane {

class HttpFetch;

struct UpdateOptions {
    QUrl manifestUrl = QUrl(QString::fromLatin1(deployment::kDownloadUrl) +
                            QStringLiteral("/download/CorvaneSetup.json"));
    /// Where the archive is stored and unpacked; it exists.
    QString folder = QDir::tempPath();
    std::function<Command(const QString& archive, const QString& folder)> unpackCommand =
        corvane::unpackCommand;
    std::chrono::milliseconds unpackTimeout = std::chrono::seconds(30);
};

/// Finds out whether a newer version is published, downloads it on request and unpacks its
/// installer. Nothing blocks; main thread only.
class UpdateService : public QObject {
    Q_OBJECT

public:
    explicit UpdateService(QObject* parent = nullptr, UpdateOptions options = UpdateOptions());
    ~UpdateService() override;

    /// Of the last update that was found; empty before there was one.
    QString latestVersion() const { return m_latestVersion; }
    QString downloadUrl() const { return m_downloadUrl; }
    QString releaseNotes() const { return m_releaseNotes; }

public Q_SLOTS:
    /// Ends in `updateAvailable` or, when there is no update or it cannot be told, in log lines.
    void checkForUpdates();

    /// Fetches the archive at `url`, of at most `kMaxUpdateArchiveBytes`, and unpacks it; ends in
    /// `readyToInstall` or `updateError`. Ignored while an earlier download has not ended.
    void downloadUpdate(const QString& url);

Q_SIGNALS:
    void updateAvailable(QString version, QString downloadUrl, QString releaseNotes);

    /// Only while the size of the archive is known.
    void downloadProgress(int percent);

    void readyToInstall(QString installerPath);

    /// `error` is a sentence for the user.
    void updateError(QString error);

private:
    void onManifest(const QByteArray& text);
    void onDownloadProgress(qint64 receivedBytes, qint64 totalBytes);
    void onDownloadArrived();
    void onDownloadFinished(const QString& error);
    bool writeArchive();
    bool openArchive();
    bool isInstallerOwn() const;
    bool removeInstaller();
    void unpack();
    void onUnpackError(QProcess::ProcessError error);
    void onUnpacked();
    void fail(const QString& error);

    QNetworkAccessManager m_network;
    UpdateOptions m_options;
    QString m_latestVersion;
    QString m_downloadUrl;
    QString m_releaseNotes;
    QPointer<HttpFetch> m_download;
    QByteArray m_unwritten;
    QFile m_archive;
    QString m_installerPath;
    QProcess m_unpacking;
    QTimer m_unpackTimer;
    bool m_busy = false;
};

} // namespace corvane
