#include "ui/LocalFilePane.h"

#include "common/ValueFormats.h"
#include "ui/FileIcons.h"
#include "ui/NameColumn.h"
#include "ui/RemoteFilePane.h"

#include <QAbstractFileIconProvider>
#include <QCoreApplication>
#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

namespace corvane {

/// Uses the same icons as the list beside this one, and names types in the user's language. The
/// base class opens every file to detect its type, and names it in English. The model calls it from
/// a thread of its own.
class LocalFilePane::IconProvider : public QAbstractFileIconProvider {
public:
    QIcon icon(IconType type) const override { return type == File ? m_file : m_folder; }
    QIcon icon(const QFileInfo& info) const override { return info.isDir() ? m_folder : m_file; }

    QString type(const QFileInfo& info) const override {
        if (info.isDir()) {
            return text(info.isRoot() ? "Drive" : "Folder");
        }
        const QString suffix = info.suffix().toUpper();
        return suffix.isEmpty() ? text("File") : text("%1 File").arg(suffix);
    }

private:
    static QString text(const char* source) {
        return QCoreApplication::translate("QAbstractFileIconProvider", source);
    }

    const QIcon m_folder = folderIcon();
    const QIcon m_file = fileIcon();
};

/// The base class aligns its headings at the top of their fields, and formats sizes differently
/// from the list beside this one.
class LocalFilePane::Model : public QFileSystemModel {
public:
    QVariant data(const QModelIndex& index, int role) const override {
        constexpr int kSizeColumn = 1;
        return role == Qt::DisplayRole && index.column() == kSizeColumn && !isDir(index)
                   ? QVariant(formatByteSize(static_cast<quint64>(size(index))))
                   : QFileSystemModel::data(index, role);
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        return role == Qt::TextAlignmentRole
                   ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                   : QFileSystemModel::headerData(section, orientation, role);
    }
};

LocalFilePane::LocalFilePane(QWidget* parent)
    : QWidget(parent), m_icons(std::make_unique<IconProvider>()) {
    auto* const label = new QLabel(tr("<b>Local Computer</b>"), this);
    label->setMinimumHeight(RemoteFilePane::kTitleHeight);
    m_model = std::make_unique<Model>();
    m_model->setIconProvider(m_icons.get());
    m_model->setFilter(QDir::AllEntries | QDir::NoDotAndDotDot);
    m_model->setRootPath(QString());

    constexpr int kNameColumn = 0;
    m_tree = new QTreeView(this);
    m_tree->setObjectName(QStringLiteral("localTree"));
    m_tree->setAccessibleName(tr("Local files"));
    m_tree->setModel(m_model.get());
    m_tree->setUniformRowHeights(true);
    m_tree->setColumnWidth(kNameColumn, 250);
    m_tree->header()->setStretchLastSection(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setSortingEnabled(true);
    m_tree->sortByColumn(kNameColumn, Qt::AscendingOrder);
    keepKeyboardOnNames(m_tree);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_tree, 1);
}

LocalFilePane::~LocalFilePane() {
    m_tree->setModel(nullptr); // the model dies before the view, which is a child
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
