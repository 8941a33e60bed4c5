#pragma once

#include "HttpMessages.h"

#include <optional>

namespace corvane::devserver {

/// The pages around the API: the caller's address, the update manifest, the administration page.
class PublicPages {
public:
    /// No value when the request is for none of them.
    std::optional<Answer> answer(const Request& request) const;

    /// Version in the update manifest; "0" at first, which no client takes for an update.
    void setManifestVersion(const QString& version) { m_manifestVersion = version; }

private:
    QString m_manifestVersion = QStringLiteral("0");
};

} // namespace corvane::devserver
