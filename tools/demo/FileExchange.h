#pragma once

#include "harness/FileManager.h"

#include <QString>

namespace corvane::demo {

struct Stage;

/// Copies a file each way with the viewer's file manager, by the keyboard, and reports whether the
/// checksums agree.
class FileExchange {
public:
    /// `remoteRoot` is the target's name for the root of this machine's file system.
    FileExchange(Stage& stage, const QString& remoteRoot);

    void run();

private:
    void copyBothWays();
    /// Whether `copy` comes to be what `original` is; says so in the report.
    void checkCopy(const QString& name, bool started, const QString& original, const QString& copy);

    Stage& m_stage;
    harness::FileManager m_manager;
};

} // namespace corvane::demo
