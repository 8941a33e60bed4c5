#pragma once

#include <QString>
#include <QStringList>

namespace corvane {

struct Command {
    QString program;
    QStringList arguments;
};

/// The command that unpacks the zip file `archive` into `folder`, over what is there. One
/// implementation per platform.
Command unpackCommand(const QString& archive, const QString& folder);

} // namespace corvane
