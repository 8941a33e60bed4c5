#pragma once

#include <QFileInfo>
#include <QList>
#include <QWidget>

#include <memory>

class QTreeView;

namespace corvane {

/// Shows this machine's file systems and follows their changes.
///
/// Object name of the view: "localTree".
class LocalFilePane : public QWidget {
    Q_OBJECT

public:
    explicit LocalFilePane(QWidget* parent = nullptr);
    ~LocalFilePane() override;

    /// Where downloads go: the selected folder, the selected file's folder, or the user's home
    /// folder when nothing is selected.
    QString targetFolder() const;

    /// The selected files, without folders.
    QList<QFileInfo> selectedFiles() const;

private:
    class IconProvider;
    class Model;

    const std::unique_ptr<IconProvider> m_icons; ///< used by the model for as long as it lives
    std::unique_ptr<Model> m_model;
    QTreeView* m_tree = nullptr;
};

} // namespace corvane
