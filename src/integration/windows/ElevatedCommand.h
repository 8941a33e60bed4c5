#pragma once

#include <QString>

#include <windows.h>

#include <shellapi.h>

#include <functional>

namespace corvane {

/// The entry points that start a program as administrator, the system's own unless a test puts
/// others in.
struct ElevationFunctions {
    std::function<decltype(::ShellExecuteExW)> shellExecute = ::ShellExecuteExW;
    std::function<decltype(::WaitForSingleObject)> waitForObject = ::WaitForSingleObject;
    std::function<decltype(::CloseHandle)> closeHandle = ::CloseHandle;
};

/// Has the command interpreter run `commandLine` as administrator without a window. Blocks while
/// the user is asked for permission and then until the interpreter ended, for 30 s at most. False
/// when it did not start, as when the user declined.
bool runElevated(const QString& commandLine, const ElevationFunctions& functions = {});

} // namespace corvane
