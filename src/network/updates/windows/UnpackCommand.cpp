#include "network/updates/UnpackCommand.h"

#include <QRegularExpression>

namespace corvane {

namespace {

// PowerShell treats typographic quotation marks like plain ones; doubled, each stands for itself.
QString quotable(QString text) {
    static const QRegularExpression kQuote(QStringLiteral("(['\u2018\u2019\u201a\u201b])"));
    return text.replace(kQuote, QStringLiteral("\\1\\1"));
}

} // namespace

Command unpackCommand(const QString& archive, const QString& folder) {
    return {QStringLiteral("powershell"),
            {QStringLiteral("-NoProfile"), QStringLiteral("-Command"),
             QStringLiteral("Expand-Archive -Path '%1' -DestinationPath '%2' -Force")
                 .arg(quotable(archive), quotable(folder))}};
}

} // namespace corvane
