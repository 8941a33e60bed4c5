#pragma once

#include "services/FileEntry.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace corvane {

/// Shows one folder of the partner's machine. All names come from the partner and are shown
/// literally. Has no connection of its own: its owner requests listings and passes them in.
///
/// Object names: "remoteBackButton", "remotePathLabel" and "remoteTree".
class RemoteFilePane : public QWidget {
    Q_OBJECT

public:
    /// Max rows shown, so that no listing can freeze the window.
    static constexpr qsizetype kMaxRows = 100'000;

    static constexpr int kTitleHeight = 28; ///< of the area above the list

    explicit RemoteFilePane(QWidget* parent = nullptr);

    /// The folder shown, as last passed to `openFolder`; empty is the top level.
    const QString& path() const { return m_path; }

    /// Shows the path and empties the list.
    void openFolder(const QString& path);

    /// Replaces the list.
    void showEntries(const QList<FileEntry>& entries);

    QList<FileEntry> selectedEntries() const; ///< in the order of the rows

    /// The names of the files, without the folders.
    QStringList fileNames() const;

    static FileEntry entryOf(const QTreeWidgetItem* item);

Q_SIGNALS:
    void itemDoubleClicked(QTreeWidgetItem* item, int column);
    void backClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void createTree();
    void updatePathLabel();

    QString m_path;
    bool m_hasPath = false; ///< a folder was opened
    QLabel* m_pathLabel = nullptr;
    QTreeWidget* m_tree = nullptr;
};

} // namespace corvane
