#include "ContactSheet.h"

#include <QPainter>

#include <algorithm>

namespace corvane::demo {

namespace {

constexpr int kColumns = 4;
constexpr int kGap = 16;
constexpr int kCaptionHeight = 28;
constexpr QSize kLargestPicture(480, 420);

} // namespace

QImage ContactSheet::draw() const {
    const QSize cell(kLargestPicture.width() + kGap,
                     kLargestPicture.height() + kCaptionHeight + kGap);
    const int rows = (count() + kColumns - 1) / kColumns;
    QImage sheet(cell.width() * kColumns + kGap, std::max(cell.height() * rows + kGap, 1),
                 QImage::Format_RGB32);
    sheet.fill(QColor(0x30, 0x34, 0x3c));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPixelSize(16);
    painter.setFont(font);
    for (int i = 0; i < count(); ++i) {
        const auto& [caption, image] = m_pictures[static_cast<size_t>(i)];
        const QPoint corner(kGap + i % kColumns * cell.width(),
                            kGap + i / kColumns * cell.height());
        painter.drawText(QRect(corner, QSize(kLargestPicture.width(), kCaptionHeight)),
                         Qt::AlignLeft | Qt::AlignVCenter, caption);
        if (image.isNull()) {
            continue;
        }
        const QSize size =
            image.size().boundedTo(image.size().scaled(kLargestPicture, Qt::KeepAspectRatio));
        painter.drawImage(corner + QPoint(0, kCaptionHeight),
                          image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return sheet;
}

} // namespace corvane::demo
