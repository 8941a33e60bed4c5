#pragma once

class QTreeView;

namespace corvane {

/// Has the keyboard work on the names of a list whose rows are selected whole: typing finds a row
/// and copying copies by the column that was clicked into, which nobody can see there.
void keepKeyboardOnNames(QTreeView* list);

} // namespace corvane
