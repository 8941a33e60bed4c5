#pragma once

namespace corvane {

/// Runs the client from start to end and returns the process's exit code. Takes the arguments of
/// the entry point. Once per process, on its first thread.
int runClient(int argc, char** argv);

} // namespace corvane
