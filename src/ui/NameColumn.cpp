#include "ui/NameColumn.h"

#include <QTreeView>

namespace corvane {

void keepKeyboardOnNames(QTreeView* list) {
    constexpr int kNameColumn = 0;
    QItemSelectionModel* const selection = list->selectionModel();
    QObject::connect(selection, &QItemSelectionModel::currentChanged, list,
                     [selection](const QModelIndex& current) {
                         if (current.column() > kNameColumn) {
                             selection->setCurrentIndex(current.siblingAtColumn(kNameColumn),
                                                        QItemSelectionModel::NoUpdate);
                         }
                     });
}

} // namespace corvane
