#include "network/updates/VersionComparison.h"

#include <QList>

#include <algorithm>

namespace corvane {

namespace {

qlonglong partAt(const QList<QStringView>& parts, qsizetype index) {
    return index < parts.size() ? parts[index].toLongLong() : 0;
}

} // namespace

bool isNewerVersion(QStringView candidate, QStringView current) {
    const QList<QStringView> left = candidate.split(u'.');
    const QList<QStringView> right = current.split(u'.');
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
        const qlonglong a = partAt(left, i);
        const qlonglong b = partAt(right, i);
        if (a != b) {
            return a > b;
        }
    }
    return false;
}

} // namespace corvane
