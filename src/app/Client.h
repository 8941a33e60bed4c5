#pragma once

namespace corvane {

/// The whole run of the client, from its start to its end; answers the process's exit code. Takes
/// what the entry point is given. Once per process, on its first thread.
int runClient(int argc, char** argv);

} // namespace corvane
