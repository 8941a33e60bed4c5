#include "app/settings/PrivateSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace corvane {

// The file is replaced whenever something is stored; each new one gets the permissions of the last.
void keepPrivate(const QSettings& settings) {
    QFile file(settings.fileName());
    QDir().mkpath(QFileInfo(file).path());
    if (file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
}

} // namespace corvane
