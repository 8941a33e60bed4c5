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

/// The value of a TryExec key, which is a plain path: only what a string of the format escapes.
QByteArray tryExecValue(const QString& program) {
    return program.toUtf8().replace('\\', "\\\\");
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
    const QString program = QCoreApplication::applicationFilePath();
    // The entry outlives the program when a package is removed; TryExec has the desktop pass over
    // it from then on.
    entry.write("[Desktop Entry]\n"
                "Type=Application\n"
                "Name=Corvane\n"
                "TryExec=" +
                tryExecValue(program) + "\nExec=" + execValue(program) + "\n");
    return entry.commit();
}

bool uninstallAutostart() {
    return QFile::remove(autostartEntryPath());
}

} // namespace corvane
