#include "harness/LinuxHost.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <utility>

namespace corvane::harness {

LinuxHost::LinuxHost(const QString& home, const QString& display)
    : m_home(home), m_environment(QProcessEnvironment::systemEnvironment()) {
    m_environment.insert(QStringLiteral("HOME"), home);
    for (const auto& [variable, folder] :
         {std::pair{"XDG_CONFIG_HOME", "config"}, std::pair{"XDG_DATA_HOME", "data"},
          std::pair{"XDG_CACHE_HOME", "cache"}, std::pair{"XDG_RUNTIME_DIR", "runtime"}}) {
        const QString path = home + QLatin1Char('/') + QLatin1String(folder);
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_environment.insert(QLatin1String(variable), path);
    }
    m_environment.insert(QStringLiteral("DISPLAY"), display);
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
}

void LinuxHost::prepare(QProcess& process, Program program, const QStringList& arguments) const {
    process.setProcessEnvironment(m_environment);
    process.setProgram(program == Program::Client ? QStringLiteral(CORVANE_CLIENT_PATH)
                                                  : QStringLiteral(CORVANE_DEMO_DESKTOP_PATH));
    process.setArguments(arguments);
}

void LinuxHost::requestEnd(QProcess& process) const {
    process.terminate();
}

void LinuxHost::presetSetting(const QString& key, const QString& value) {
    QSettings(settingsPath(), QSettings::NativeFormat).setValue(key, value);
}

QString LinuxHost::setting(const QString& key) const {
    return QSettings(settingsPath(), QSettings::NativeFormat).value(key).toString();
}

QString LinuxHost::logPath() const {
    return m_home + QStringLiteral("/data/Corvane/CorvaneClient/CorvaneClient.log");
}

QString LinuxHost::settingsPath() const {
    return m_home + QStringLiteral("/config/Corvane/CorvaneClient.conf");
}

} // namespace corvane::harness
