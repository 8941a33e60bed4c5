#pragma once

#include <QString>
#include <QStringList>

namespace corvane {

/// What another machine wrote, made fit to be shown: on one line, without what cannot be printed,
/// and with a mark where it was cut after `longest` characters.
QString shownOnOneLine(const QString& text, qsizetype longest);

/// A file's name, short enough to stand inside a sentence.
QString shownName(const QString& name);

/// One name per line, few enough that a message box fits on the screen, and how many more there
/// are.
QString shownNames(const QStringList& names);

} // namespace corvane
