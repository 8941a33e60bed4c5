#include "integration/windows/IntegrationCommand.h"

namespace corvane {

namespace {

QString logonTaskCommand(bool wanted, const QString& program) {
    if (!wanted) {
        return QStringLiteral(R"(schtasks /delete /tn "CorvaneClient" /f)");
    }
    return QStringLiteral(R"(schtasks /create /tn "CorvaneClient" /tr "\"%1\"" )"
                          R"(/sc onlogon /rl highest /f)")
        .arg(program);
}

QString serviceCommand(bool wanted, const QString& service) {
    const QString format = wanted
                               ? QStringLiteral(R"(& "%1" --install & net start CorvaneService)")
                               : QStringLiteral(R"(& net stop CorvaneService & "%1" --uninstall)");
    return format.arg(service);
}

} // namespace

QString integrationCommandLine(const IntegrationChoice& choice, const QString& program,
                               const QString& folder) {
    const QString service = folder + QStringLiteral("/CorvaneService.exe");
    return logonTaskCommand(choice.startAtLogon, program) + QLatin1Char(' ') +
           serviceCommand(choice.runService, service);
}

} // namespace corvane
