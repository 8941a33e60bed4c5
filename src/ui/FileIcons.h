#pragma once

#include <QIcon>

namespace corvane {

/// What marks a row in a list of files; dark where the row is selected. Main thread; the icons
/// themselves may be copied anywhere.
QIcon folderIcon();
QIcon fileIcon();

} // namespace corvane
