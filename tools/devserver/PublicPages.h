#pragma once

#include "devserver/HttpMessages.h"

#include <QUrl>

#include <optional>

namespace corvane::devserver {

/// The pages beside the API: the caller's address, the update manifest, the administration page.
class PublicPages {
public:
    /// No value when the request is for none of them.
    std::optional<Answer> answer(const Request& request) const;

    /// Sets where the manifest's download URL points; a scripted reply can serve the archive.
    void setBaseUrl(const QUrl& url) { m_baseUrl = url; }

    /// Version in the update manifest; initially "0", which no client takes for an update.
    void setManifestVersion(const QString& version) { m_manifestVersion = version; }

private:
    QUrl m_baseUrl;
    QString m_manifestVersion = QStringLiteral("0");
};

} // namespace corvane::devserver
