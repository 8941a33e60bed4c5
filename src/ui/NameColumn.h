#pragma once

class QTreeView;

namespace corvane {

/// Keeps a list's current column on the names where rows are selected whole: typing finds a row,
/// and copying copies, by the column that was clicked, which the user cannot see.
void keepKeyboardOnNames(QTreeView* list);

} // namespace corvane
