#include "demo/DemoReport.h"

#include <cstdio>

namespace corvane::demo {

void DemoReport::fact(const QString& name, const QString& value) {
    std::printf("%-20s %s\n", name.toUtf8().constData(), value.toUtf8().constData());
    std::fflush(stdout);
}

bool DemoReport::check(const QString& name, bool holds, const QString& value) {
    fact(name, (holds ? QString() : QStringLiteral("FAILED: ")) + value);
    m_good = m_good && holds;
    return holds;
}

} // namespace corvane::demo
