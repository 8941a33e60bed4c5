#pragma once

#include <QString>
#include <QStringList>

namespace corvane {

/// Text from another machine, made fit to be shown: on one line, without unprintable characters,
/// and with an ellipsis where it was cut after `maxLength` characters.
QString shownOnOneLine(const QString& text, qsizetype maxLength);

/// A file's name, short enough to stand inside a sentence.
QString shownName(const QString& name);

/// One name per line, as many as fit in a message box, then how many more there are.
QString shownNames(const QStringList& names);

} // namespace corvane
