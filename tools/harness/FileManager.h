#pragma once

#include <QPoint>
#include <QString>

#include <xcb/xcb.h>

#include <vector>

namespace corvane::harness {

class ClientProcess;
class DisplayUser;

/// A person copying files with the file manager of a connected viewer, using the keyboard. Typed
/// names may contain only what the display's keyboard has. Every action returns whether it worked.
class FileManager {
public:
    /// `user` operates `viewer`. `remoteRoot` is the shared machine's name for the root of this
    /// machine's file system.
    FileManager(DisplayUser& user, const ClientProcess& viewer, const QString& remoteRoot);

    static const QString kTitle;

    /// Opens it from the viewer's main window, which has the keyboard.
    bool open();
    bool close();

    /// Goes there from the top level, where the file manager starts. `path` is a path on this
    /// machine.
    bool openRemoteFolder(const QString& path);

    /// Goes to the first entry of a folder, which must have one.
    bool openLocalFolder(const QString& path);

    /// Types the row's name until it is selected, in the list that has the keyboard.
    bool selectRow(const QString& row);

    bool selectAllRemote();

    /// Presses the button, starting from the list on the side that the files come from.
    void download();
    void upload();

private:
    /// Opens the selected row. False when the folder then listed is not `expectedPath`.
    bool enter(const QString& expectedPath);
    bool isListed(const QString& path) const;
    /// Opens the selected row and goes to its first entry once that is listed.
    bool moveInto(const QString& row);
    /// Gives the keyboard to the list at that place.
    bool goToFirstRow(QPoint list);
    /// Does nothing when the row is already selected.
    bool findRow(const QString& row);
    /// Presses the button that Tab leads to, with `held` down.
    void pressNext(const std::vector<xcb_keysym_t>& held);

    DisplayUser& m_user;
    const ClientProcess& m_viewer;
    const QString m_remoteRoot;
};

} // namespace corvane::harness
