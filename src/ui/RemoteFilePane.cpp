#include "ui/RemoteFilePane.h"

#include "common/ValueFormats.h"
#include "ui/CardParts.h"
#include "ui/FileIcons.h"
#include "ui/NameColumn.h"

#include <QCollator>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

constexpr int kNameColumn = 0;
constexpr int kSizeColumn = 1;
constexpr int kTypeColumn = 2;
constexpr int kFolderRole = Qt::UserRole;
constexpr int kEntryRole = Qt::UserRole + 1;

/// A row that sorts by name or type as text and by size as a number, folders before files.
class EntryItem : public QTreeWidgetItem {
public:
    explicit EntryItem(const FileEntry& entry) : m_isFolder(entry.isDirectory), m_size(entry.size) {
        const bool hasSize = !entry.isDirectory && entry.size > 0;
        setText(kNameColumn, entry.name);
        setText(kSizeColumn, hasSize ? formatByteSize(entry.size) : QString());
        setText(kTypeColumn,
                entry.isDirectory ? RemoteFilePane::tr("Folder") : RemoteFilePane::tr("File"));
        setTextAlignment(kSizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        setData(kNameColumn, kFolderRole, entry.isDirectory);
        setData(kNameColumn, kEntryRole, QVariant::fromValue(entry));
    }

    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget()->sortColumn();
        if (column != kSizeColumn) {
            return collator().compare(text(column), other.text(column)) < 0;
        }
        const auto& entry = static_cast<const EntryItem&>(other);
        return m_isFolder != entry.m_isFolder ? m_isFolder : m_size < entry.m_size;
    }

private:
    /// Sorts as people would: "a2" before "B1", and "a2" before "a10".
    static const QCollator& collator() {
        static const QCollator instance = [] {
            QCollator collator;
            collator.setCaseSensitivity(Qt::CaseInsensitive);
            collator.setNumericMode(true);
            return collator;
        }();
        return instance;
    }

    const bool m_isFolder;
    const quint64 m_size;
};

} // namespace

RemoteFilePane::RemoteFilePane(QWidget* parent) : QWidget(parent) {
    auto* const back =
        createIconButton(QStringLiteral("remoteBackButton"), QStringLiteral("arrow_back"),
                         tr("Go up one directory"), kTitleHeight, this);
    back->setAutoDefault(false);
    connect(back, &QPushButton::clicked, this, &RemoteFilePane::backClicked);
    m_pathLabel = new QLabel(this);
    m_pathLabel->setObjectName(QStringLiteral("remotePathLabel"));
    m_pathLabel->setTextFormat(Qt::RichText);
    m_pathLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    createTree();

    auto* const row = new QHBoxLayout;
    row->addWidget(back);
    row->addWidget(m_pathLabel, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 6, 0);
    layout->addLayout(row);
    layout->addWidget(m_tree, 1);
    updatePathLabel();
}

void RemoteFilePane::createTree() {
    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QStringLiteral("remoteTree"));
    m_tree->setAccessibleName(tr("Remote files"));
    m_tree->setHeaderLabels({tr("Name"), tr("Size"), tr("Type")});
    m_tree->setColumnWidth(kNameColumn, 250);
    m_tree->setColumnWidth(kSizeColumn, 80);
    // With its default width, the last column would make the pane scroll sideways.
    m_tree->header()->setMinimumSectionSize(40);
    m_tree->header()->setStretchLastSection(false); // otherwise it would not shrink
    m_tree->header()->setSectionResizeMode(kTypeColumn, QHeaderView::Stretch);
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setSortingEnabled(true);
    m_tree->sortByColumn(kNameColumn, Qt::AscendingOrder);
    keepKeyboardOnNames(m_tree);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &RemoteFilePane::itemDoubleClicked);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* const open = new QShortcut(key, m_tree, nullptr, nullptr, Qt::WidgetShortcut);
        connect(open, &QShortcut::activated, this, [this] {
            if (QTreeWidgetItem* const item = m_tree->currentItem()) {
                Q_EMIT itemDoubleClicked(item, kNameColumn);
            }
        });
    }
    auto* const up = new QShortcut(Qt::Key_Backspace, m_tree, nullptr, nullptr, Qt::WidgetShortcut);
    connect(up, &QShortcut::activated, this, &RemoteFilePane::backClicked);
}

void RemoteFilePane::openFolder(const QString& path) {
    m_path = path;
    m_hasPath = true;
    m_tree->clear();
    updatePathLabel();
}

void RemoteFilePane::showEntries(const QList<FileEntry>& entries) {
    if (entries.size() > kMaxRows) {
        spdlog::warn("RemoteFilePane: showing {} of {} entries", kMaxRows, entries.size());
    }
    const QIcon folder = folderIcon();
    const QIcon file = fileIcon();
    QList<QTreeWidgetItem*> items;
    for (const FileEntry& entry : entries.first(qMin(entries.size(), kMaxRows))) {
        items.append(new EntryItem(entry));
        items.back()->setIcon(kNameColumn, entry.isDirectory ? folder : file);
    }
    m_tree->clear();
    m_tree->addTopLevelItems(items);
}

QList<FileEntry> RemoteFilePane::selectedEntries() const {
    QList<FileEntry> entries;
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
        if (const QTreeWidgetItem* const item = m_tree->topLevelItem(row); item->isSelected()) {
            entries.append(entryOf(item));
        }
    }
    return entries;
}

QStringList RemoteFilePane::fileNames() const {
    QStringList names;
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
        if (const FileEntry entry = entryOf(m_tree->topLevelItem(row)); !entry.isDirectory) {
            names.append(entry.name);
        }
    }
    return names;
}

FileEntry RemoteFilePane::entryOf(const QTreeWidgetItem* item) {
    return item->data(kNameColumn, kEntryRole).value<FileEntry>();
}

void RemoteFilePane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    updatePathLabel();
}

void RemoteFilePane::updatePathLabel() {
    if (!m_hasPath) {
        m_pathLabel->setText(tr("<b>Remote Computer</b>"));
        return;
    }
    const QString path = m_path.isEmpty() ? QStringLiteral("/") : m_path;
    const QString text = tr("<b>Remote: </b>%1");
    // The end of a long path says more than its beginning.
    m_pathLabel->setText(text.arg(QString()));
    const int width = m_pathLabel->width() - m_pathLabel->sizeHint().width();
    m_pathLabel->setText(text.arg(
        m_pathLabel->fontMetrics().elidedText(path, Qt::ElideLeft, width).toHtmlEscaped()));
    m_pathLabel->setToolTip(path.toHtmlEscaped());
}

} // namespace corvane
