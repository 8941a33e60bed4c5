#include "harness/IHost.h"

#include "harness/LinuxHost.h"
#include "harness/WineHost.h"

namespace corvane::harness {

QString toString(Platform platform) {
    return platform == Platform::Windows ? QStringLiteral("Windows") : QStringLiteral("Linux");
}

std::unique_ptr<IHost> createHost(Platform platform, const QString& home, const QString& display) {
    if (platform == Platform::Windows) {
        return std::make_unique<WineHost>(home, display);
    }
    return std::make_unique<LinuxHost>(home, display);
}

} // namespace corvane::harness
