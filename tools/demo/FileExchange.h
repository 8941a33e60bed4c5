#pragma once

#include <QString>
#include <QStringList>

#include <xcb/xcb.h>

#include <vector>

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
    bool openRemoteFolder(const QStringList& folders);
    /// Opens the selected row. False when what is listed then is not the folder `expectedPath`.
    bool enter(const QString& expectedPath);
    bool isListed(const QString& path) const;
    bool expandLocalFolder(const QStringList& folders);
    /// Opens the selected row and moves on to what is in it, once that is there.
    bool moveInto(const QString& row);
    /// Moves to the first row, which is `row` or else comes before it.
    bool selectFirstRow(const QString& row);
    /// Types the row's name until it is the selected one.
    bool selectRow(const QString& row);
    /// Presses the button that Tab leads to, with `held` down.
    bool pressNext(const std::vector<xcb_keysym_t>& held);
    /// Whether `copy` comes to be what `original` is; says so in the report.
    void checkCopy(const QString& name, bool started, const QString& original, const QString& copy);

    Stage& m_stage;
    const QString m_remoteRoot;
};

} // namespace corvane::demo
