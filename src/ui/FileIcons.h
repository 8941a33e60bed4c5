#pragma once

#include <QIcon>

namespace corvane {

/// The icons of rows in a list of files; dark in selected rows. Main thread; the icons themselves
/// may be copied on any thread.
QIcon folderIcon();
QIcon fileIcon();

} // namespace corvane
