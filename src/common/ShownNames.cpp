#include "common/ShownNames.h"

namespace corvane {

QString shownOnOneLine(const QString& text, qsizetype maxLength) {
    QString line = text.first(qMin(text.size(), maxLength)).simplified();
    line.removeIf([](QChar character) { return !character.isPrint() && !character.isSurrogate(); });
    return text.size() > maxLength ? line + QStringLiteral("…") : line;
}

QString shownName(const QString& name) {
    return shownOnOneLine(name, 60);
}

QString shownNames(const QStringList& names) {
    constexpr qsizetype kMaxNames = 12;
    QStringList lines;
    for (const QString& name : names.first(qMin(names.size(), kMaxNames))) {
        lines.append(shownName(name));
    }
    if (names.size() > kMaxNames) {
        lines.append(QStringLiteral("… (+%1)").arg(names.size() - kMaxNames));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace corvane
