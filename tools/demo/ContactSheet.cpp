#include "demo/ContactSheet.h"

#include <QPainter>

#include <algorithm>

namespace corvane::demo {

namespace {

constexpr size_t kColumns = 4;
constexpr int kGap = 16;
constexpr int kCaptionHeight = 28;
constexpr QSize kMaxPicture(480, 420);
constexpr QColor kBackground(0x30, 0x34, 0x3c);

/// Shrinks the image to fit, never enlarges it.
QImage shrunk(const QImage& image) {
    const bool fits = image.size().boundedTo(kMaxPicture) == image.size();
    return fits ? image : image.scaled(kMaxPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QImage ContactSheet::draw() const {
    constexpr int kCellWidth = kMaxPicture.width() + kGap;
    std::vector<QImage> shown;
    for (const Picture& picture : m_pictures) {
        shown.push_back(shrunk(picture.image));
    }
    const auto rowHeight = [&](size_t first) {
        int height = 0;
        for (size_t i = first; i < std::min(first + kColumns, shown.size()); ++i) {
            height = std::max(height, shown[i].height());
        }
        return kCaptionHeight + height + kGap;
    };
    int height = kGap;
    for (size_t first = 0; first < shown.size(); first += kColumns) {
        height += rowHeight(first);
    }
    QImage sheet(static_cast<int>(kColumns) * kCellWidth + kGap, height, QImage::Format_RGB32);
    sheet.fill(kBackground);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPixelSize(kCaptionHeight * 2 / 3);
    painter.setFont(font);
    QPoint corner(kGap, kGap);
    for (size_t i = 0; i < shown.size(); ++i) {
        painter.drawText(QRect(corner, QSize(kMaxPicture.width(), kCaptionHeight)),
                         Qt::AlignLeft | Qt::AlignVCenter, m_pictures[i].caption);
        painter.drawImage(corner + QPoint(0, kCaptionHeight), shown[i]);
        corner.rx() += kCellWidth;
        if ((i + 1) % kColumns == 0) {
            corner = {kGap, corner.y() + rowHeight(i + 1 - kColumns)};
        }
    }
    return sheet;
}

} // namespace corvane::demo
