#include "harness/WineHost.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace corvane::harness {

namespace {

constexpr int kToolTimeoutMs = 120'000; // creating the first prefix takes long

const auto kBuild = QStringLiteral(CORVANE_WINDOWS_BUILD);
const auto kPrefixScript = QStringLiteral(CORVANE_SCRIPTS "/wine-prefix.sh");

QString windowsPath(const QString& path) {
    return QStringLiteral("Z:") + QString(path).replace(u'/', u'\\');
}

QString escaped(QString text) {
    return text.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
}

/// Where the registry keeps "auth/clientId": the key below the user's branch, and the value's name.
std::pair<QString, QString> registryValue(const QString& setting) {
    return {QStringLiteral("Software\\Corvane\\CorvaneClient\\") + setting.section(u'/', 0, 0),
            setting.section(u'/', 1)};
}

} // namespace

WineHost::WineHost(const QString& home, const QString& display, const QString& package)
    : m_prefix(home + QStringLiteral("/wine")), m_package(package),
      m_environment(QProcessEnvironment::systemEnvironment()) {
    m_environment.insert(QStringLiteral("HOME"), home);
    m_environment.insert(QStringLiteral("DISPLAY"), display);
    m_environment.insert(QStringLiteral("WINEPREFIX"), m_prefix);
    m_environment.insert(QStringLiteral("WINEDEBUG"), QStringLiteral("-all"));
    run(kPrefixScript, {m_prefix});
}

WineHost::~WineHost() {
    run(kPrefixScript, {QStringLiteral("--end"), m_prefix});
}

QString WineHost::obstacle() {
    if (kBuild.isEmpty() || packageFolder().isEmpty()) {
        return QStringLiteral("no Windows build that goes with this one");
    }
    return QStandardPaths::findExecutable(QStringLiteral("wine")).isEmpty()
               ? QStringLiteral("no Wine")
               : QString();
}

QString WineHost::packageFolder() {
    const QDir packages(kBuild + QStringLiteral("/package"));
    const QStringList found = packages.entryList({QStringLiteral("Corvane-*")}, QDir::Dirs);
    return found.isEmpty() ? QString() : packages.filePath(found.first());
}

void WineHost::prepare(QProcess& process, Program program, const QStringList& arguments) const {
    auto environment = m_environment;
    QStringList command{m_package + QStringLiteral("/CorvaneClient.exe")};
    if (program == Program::DemoDesktop) {
        // It is not in the package, but uses the package's libraries.
        environment.insert(QStringLiteral("WINEPATH"), windowsPath(m_package));
        command = {kBuild + QStringLiteral("/tools/demodesktop/corvane-demo-desktop.exe"),
                   QStringLiteral("-platformpluginpath"),
                   windowsPath(m_package + QStringLiteral("/plugins/platforms"))};
    }
    // Programs started at the same time would race to start the Wine server.
    run(QStringLiteral("wineserver"), {QStringLiteral("--persistent=30")});
    process.setProcessEnvironment(environment);
    process.setProgram(QStringLiteral("wine"));
    process.setArguments(command + arguments);
}

void WineHost::requestEnd(QProcess&) const {
    run(QStringLiteral("wineboot"), {QStringLiteral("--end-session")});
}

void WineHost::presetSetting(const QString& key, const QString& value) {
    const auto [path, name] = registryValue(key);
    QFile registry(m_prefix + QStringLiteral("/user.reg"));
    if (registry.open(QIODevice::Append)) {
        registry.write(QStringLiteral("\n[%1]\n\"%2\"=\"%3\"\n")
                           .arg(escaped(path), escaped(name), escaped(value))
                           .toUtf8());
    }
}

QString WineHost::setting(const QString& key) const {
    const auto [path, name] = registryValue(key);
    const QByteArray answer =
        run(QStringLiteral("wine"), {QStringLiteral("reg"), QStringLiteral("query"),
                                     QStringLiteral("HKCU\\") + path, QStringLiteral("/v"), name});
    return QString::fromUtf8(answer).section(QStringLiteral("REG_SZ"), 1).trimmed();
}

QString WineHost::logPath() const {
    const QDir users(m_prefix + QStringLiteral("/drive_c/users"));
    QStringList names = users.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    names.removeAll(QStringLiteral("Public"));
    return users.filePath(names.value(0) +
                          QStringLiteral("/AppData/Local/Corvane/CorvaneClient/CorvaneClient.log"));
}

QByteArray WineHost::run(const QString& program, const QStringList& arguments) const {
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    process.waitForFinished(kToolTimeoutMs);
    return process.readAllStandardOutput();
}

} // namespace corvane::harness
