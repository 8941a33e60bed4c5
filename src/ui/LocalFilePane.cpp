#include "LocalFilePane.h"

#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

namespace corvane {

LocalFilePane::LocalFilePane(QWidget* parent) : QWidget(parent) {
    auto* const label = new QLabel(tr("<b>Local Computer</b>"), this);
    m_model = new QFileSystemModel(this);
    m_model->setFilter(QDir::AllEntries | QDir::NoDotAndDotDot);
    m_model->setRootPath(QString());

    constexpr int kNameColumn = 0;
    m_tree = new QTreeView(this);
    m_tree->setObjectName(QStringLiteral("localTree"));
    m_tree->setAccessibleName(tr("Local files"));
    m_tree->setModel(m_model);
    m_tree->setUniformRowHeights(true);
    m_tree->setColumnWidth(kNameColumn, 250);
    m_tree->header()->setStretchLastSection(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setSortingEnabled(true);
    m_tree->sortByColumn(kNameColumn, Qt::AscendingOrder);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_tree, 1);
}

QString LocalFilePane::targetFolder() const {
    const QModelIndexList rows = m_tree->selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        return QDir::homePath();
    }
    const QFileInfo selected = m_model->fileInfo(rows.first());
    return selected.isDir() ? selected.filePath() : selected.path();
}

QList<QFileInfo> LocalFilePane::selectedFiles() const {
    QList<QFileInfo> files;
    for (const QModelIndex& row : m_tree->selectionModel()->selectedRows()) {
        if (const QFileInfo info = m_model->fileInfo(row); !info.isDir()) {
            files.append(info);
        }
    }
    return files;
}

} // namespace corvane
