#include "ui/FitRectangle.h"

#include <cmath>

namespace corvane {

QRect fitRectangle(QSize picture, QSize area) {
    if (picture.width() <= 0 || picture.height() <= 0 || area.height() <= 0) {
        return {QPoint(0, 0), area};
    }
    const double aspect = static_cast<double>(picture.width()) / picture.height();
    QSize fitted = area;
    if (static_cast<double>(area.width()) / area.height() > aspect) {
        fitted.setWidth(static_cast<int>(std::lround(area.height() * aspect)));
    } else {
        fitted.setHeight(static_cast<int>(std::lround(area.width() / aspect)));
    }
    return {QPoint((area.width() - fitted.width()) / 2, (area.height() - fitted.height()) / 2),
            fitted};
}

std::optional<QPointF> fractionWithin(const QRect& rectangle, QPointF position) {
    if (rectangle.width() < 1 || rectangle.height() < 1) {
        return std::nullopt;
    }
    const double x = (position.x() - rectangle.x()) / rectangle.width();
    const double y = (position.y() - rectangle.y()) / rectangle.height();
    const auto inside = [](double fraction) {
        return fraction >= 0.0 && fraction <= 1.0;
    };
    if (!inside(x) || !inside(y)) {
        return std::nullopt;
    }
    return QPointF(x, y);
}

} // namespace corvane
