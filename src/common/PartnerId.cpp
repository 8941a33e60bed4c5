#include "common/PartnerId.h"

#include <QRegularExpression>

namespace corvane {

QString barePartnerId(const QString& text) {
    QString bare = text;
    return bare.remove(QLatin1Char(' '));
}

QString formatPartnerId(const QString& id) {
    const QString bare = barePartnerId(id);
    if (bare.size() != 9) {
        return id;
    }
    return bare.first(3) + QLatin1Char(' ') + bare.sliced(3, 3) + QLatin1Char(' ') + bare.last(3);
}

bool isPartnerId(const QString& bareId) {
    static const QRegularExpression kNineDigits(QStringLiteral("^\\d{9}$"),
                                                QRegularExpression::DontCaptureOption);
    // "$" also matches before a final line feed.
    return bareId.size() == 9 && kNineDigits.match(bareId).hasMatch();
}

} // namespace corvane
