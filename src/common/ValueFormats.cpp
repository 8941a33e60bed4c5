#include "common/ValueFormats.h"

#include <QCoreApplication>

namespace corvane {

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("corvane::ValueFormats", text);
}

} // namespace

QString formatByteSize(quint64 bytes) {
    constexpr quint64 kKilo = 1024;
    constexpr quint64 kMega = 1024 * kKilo;
    constexpr quint64 kGiga = 1024 * kMega;
    const auto inUnits = [bytes](quint64 unit, int decimals) {
        return QString::number(static_cast<double>(bytes) / static_cast<double>(unit), 'f',
                               decimals);
    };
    if (bytes < kKilo) {
        return translated(QT_TRANSLATE_NOOP("corvane::ValueFormats", "%1 B")).arg(bytes);
    }
    if (bytes < kMega) {
        return translated(QT_TRANSLATE_NOOP("corvane::ValueFormats", "%1 KB"))
            .arg(inUnits(kKilo, 1));
    }
    if (bytes < kGiga) {
        return translated(QT_TRANSLATE_NOOP("corvane::ValueFormats", "%1 MB"))
            .arg(inUnits(kMega, 1));
    }
    return translated(QT_TRANSLATE_NOOP("corvane::ValueFormats", "%1 GB")).arg(inUnits(kGiga, 2));
}

QString formatDuration(quint64 seconds) {
    const auto twoDigits = [](quint64 value) {
        return QString::number(value).rightJustified(2, QLatin1Char('0'));
    };
    return QStringLiteral("%1:%2:%3")
        .arg(twoDigits(seconds / 3600), twoDigits(seconds / 60 % 60), twoDigits(seconds % 60));
}

} // namespace corvane
