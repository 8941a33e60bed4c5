#include "integration/Autostart.h"

#include "integration/linux/AutostartEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace corvane {

namespace {

QString autostartFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

/// The value of an Exec key: quoted, and escaped against the quotes, the string rules of desktop
/// files and the key's own percent codes.
QByteArray execValue(const QString& program) {
    QByteArray quoted;
    for (const char c : program.toUtf8()) {
        if (c == '"' || c == '`' || c == '$') {
            quoted += "\\\\";
        } else if (c == '\\') {
            quoted += "\\\\\\";
        } else if (c == '%') {
            quoted += '%';
        }
        quoted += c;
    }
    return '"' + quoted + '"';
}

} // namespace

QString autostartEntryPath() {
    return autostartFolder() + QStringLiteral("/CorvaneClient.desktop");
}

bool installAutostart() {
    QDir().mkpath(autostartFolder());
    QSaveFile entry(autostartEntryPath());
    if (!entry.open(QIODevice::WriteOnly)) {
        return false;
    }
    entry.write("[Desktop Entry]\n"
                "Type=Application\n"
                "Name=Corvane\n"
                "Exec=" +
                execValue(QCoreApplication::applicationFilePath()) + "\n");
    return entry.commit();
}

bool uninstallAutostart() {
    return QFile::remove(autostartEntryPath());
}

} // namespace corvane
