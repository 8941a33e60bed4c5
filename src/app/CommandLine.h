#pragma once

#include <QStringList>
#include <spdlog/common.h>

namespace corvane {

/// What the command line asks for. Options are compared exactly and only the first occurrence
/// counts; a log level may be written in any case, and an unknown one means the default.
struct CommandLine {
    enum class Action {
        Run,
        Install,   ///< start the program at log-on from now on, then exit
        Uninstall, ///< take that back, then exit
    };

    Action action = Action::Run;
    spdlog::level::level_enum logLevel = spdlog::level::err;
};

CommandLine parseCommandLine(const QStringList& arguments);

} // namespace corvane
