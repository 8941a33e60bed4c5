#include "ui/FileIcons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace corvane {

namespace {

QIcon rowIcon(const QString& path) {
    constexpr QSize kSize(24, 24);
    QIcon icon(path);
    for (const qreal scale : {1.0, 2.0}) {
        QPixmap selected = icon.pixmap(kSize, scale);
        if (selected.isNull()) {
            continue;
        }
        QPainter painter(&selected);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), kSize), QGuiApplication::palette().highlightedText());
        painter.end();
        icon.addPixmap(selected, QIcon::Selected);
    }
    return icon;
}

} // namespace

QIcon folderIcon() {
    return rowIcon(QStringLiteral(":/icons/folder"));
}

QIcon fileIcon() {
    return rowIcon(QStringLiteral(":/icons/file"));
}

} // namespace corvane
