#pragma once

#include <QStringList>
#include <spdlog/common.h>

namespace corvane {

/// What the command line asks for. Names are compared exactly; only the first occurrence counts.
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
