#pragma once

#include <QPoint>
#include <QString>

#include <xcb/xcb.h>

#include <vector>

namespace corvane::harness {

class ClientProcess;
class DisplayUser;

/// A person who copies files with the file manager of a connected viewer, by the keyboard. Names
/// that are typed consist of what the display's keyboard has. Everything answers whether it worked.
class FileManager {
public:
    /// `user` sits before `viewer`. `remoteRoot` is the target's name for the root of this
    /// machine's file system.
    FileManager(DisplayUser& user, const ClientProcess& viewer, const QString& remoteRoot);

    static const QString kTitle;

    /// From the viewer's main window, which has the keyboard.
    bool open();
    bool close();

    /// Goes there from the top level, where the file manager starts. `path` is this machine's.
    bool openRemoteFolder(const QString& path);

    /// Goes to the first entry of a folder that has some.
    bool openLocalFolder(const QString& path);

    /// Types the row's name until it is the selected one, in the list that has the keyboard.
    bool selectRow(const QString& row);

    bool selectAllRemote();

    /// Presses the button, from the list of the side that the files come from.
    void download();
    void upload();

private:
    /// Opens the selected row. False when what is listed then is not the folder `expectedPath`.
    bool enter(const QString& expectedPath);
    bool isListed(const QString& path) const;
    /// Opens the selected row and moves on to what is in it, once that is there.
    bool moveInto(const QString& row);
    /// Gives the keyboard to the list at that place.
    bool goToFirstRow(QPoint list);
    /// Stays on the row where it is the selected one already.
    bool findRow(const QString& row);
    /// Presses the button that Tab leads to, with `held` down.
    void pressNext(const std::vector<xcb_keysym_t>& held);

    DisplayUser& m_user;
    const ClientProcess& m_viewer;
    const QString m_remoteRoot;
};

} // namespace corvane::harness
