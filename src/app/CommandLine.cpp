#include "app/CommandLine.h"

#include <array>
#include <utility>

namespace corvane {

namespace {

spdlog::level::level_enum parseLogLevel(const QString& text) {
    const std::array<std::pair<QLatin1String, spdlog::level::level_enum>, 4> levels{{
        {QLatin1String("debug"), spdlog::level::debug},
        {QLatin1String("info"), spdlog::level::info},
        {QLatin1String("warning"), spdlog::level::warn},
        {QLatin1String("error"), spdlog::level::err},
    }};
    for (const auto& [name, level] : levels) {
        if (text.compare(name, Qt::CaseInsensitive) == 0) {
            return level;
        }
    }
    return CommandLine().logLevel;
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments) {
    // The first argument is the program.
    const QStringList options = arguments.mid(1);
    CommandLine commandLine;
    if (const auto at = options.indexOf(QLatin1String("--log-level")); at >= 0) {
        commandLine.logLevel = parseLogLevel(options.value(at + 1));
    }
    if (options.contains(QLatin1String("--install"))) {
        commandLine.action = CommandLine::Action::Install;
    } else if (options.contains(QLatin1String("--uninstall"))) {
        commandLine.action = CommandLine::Action::Uninstall;
    }
    return commandLine;
}

} // namespace corvane
