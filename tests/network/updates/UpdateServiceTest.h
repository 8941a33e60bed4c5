#pragma once

#include "network/CannedServer.h"
#include "network/server/SignalLines.h"
#include "network/updates/UpdateService.h"
#include "support/Files.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace corvane::test {

/// An answer with its length.
inline QByteArray httpAnswer(const QByteArray& body) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
           body;
}

/// A program that is on every machine and does nothing.
inline Command nothing(const QString&, const QString&) {
    return {QCoreApplication::applicationFilePath(), {QStringLiteral("--gtest_filter=-*")}};
}

/// Takes the archive itself for the installer in it.
inline Command copied(const QString& archive, const QString& folder) {
    QFile::copy(archive, folder + QStringLiteral("/CorvaneSetup.exe"));
    return nothing(archive, folder);
}

/// Downloads from canned servers into a folder of its own.
class UpdateServiceTest : public testing::Test {
protected:
    UpdateServiceTest() { m_options.folder = m_folder.path(); }

    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    std::string installerPath() const { return path("CorvaneSetup.exe").toStdString(); }

    QByteArray content(const char* name) const { return contentOf(path(name)); }

    void write(const char* name, const QByteArray& text) const { writeFile(path(name), text); }

    /// The end of a download of these bytes: "readyToInstall|path" or "updateError|text".
    std::string download(const QByteArray& archive) {
        const CannedServer server(httpAnswer(archive));
        return downloadFrom(server.url().toString());
    }

    std::string downloadFrom(const QString& url) {
        UpdateService service(nullptr, m_options);
        SignalLines lines(service, &UpdateService::readyToInstall, &UpdateService::updateError);
        service.downloadUpdate(url);
        return lines.next();
    }

    LogCapture m_log;
    QTemporaryDir m_folder;
    UpdateOptions m_options;
};

} // namespace corvane::test
