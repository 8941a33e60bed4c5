#pragma once

#include <QFileInfo>
#include <QList>
#include <QWidget>

class QFileSystemModel;
class QTreeView;

namespace corvane {

/// Shows the file systems of this machine and follows their changes.
///
/// Object name of the view: "localTree".
class LocalFilePane : public QWidget {
    Q_OBJECT

public:
    explicit LocalFilePane(QWidget* parent = nullptr);

    /// Where downloads go: the selected folder, the selected file's folder, or the user's home
    /// folder when nothing is selected.
    QString targetFolder() const;

    /// The selected files, without folders.
    QList<QFileInfo> selectedFiles() const;

private:
    QFileSystemModel* m_model = nullptr;
    QTreeView* m_tree = nullptr;
};

} // namespace corvane
