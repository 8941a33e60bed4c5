#include "compare/ProcessTime.h"

#include <QFile>

#include <unistd.h>

namespace corvane::compare {

double processorMilliseconds(qint64 process) {
    constexpr qsizetype kUser = 11; // counted from the field after the name, which may hold spaces
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0.0;
    }
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    const double ticks = fields.value(kUser).toDouble() + fields.value(kUser + 1).toDouble();
    return ticks * 1000.0 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

} // namespace corvane::compare
