#pragma once

#include "harness/FileManager.h"

#include <QString>

namespace corvane::demo {

struct Stage;

/// Copies a file each way with the viewer's file manager, using the keyboard, and reports whether
/// the checksums agree.
class FileExchange {
public:
    /// `remoteRoot` is the shared machine's name for the root of this machine's file system.
    FileExchange(Stage& stage, const QString& remoteRoot);

    void run();

private:
    void copyBothWays();
    /// Waits for `copy` to become identical to `original` and reports the result.
    void checkCopy(const QString& name, bool started, const QString& original, const QString& copy);

    Stage& m_stage;
    harness::FileManager m_manager;
};

} // namespace corvane::demo
