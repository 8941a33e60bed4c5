#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include <optional>

namespace corvane {

/// The largest centred rectangle inside `area` with the proportions of `picture`; the whole area
/// while there is no picture. Both sizes in the same unit, origin at the top left.
QRect fitRectangle(QSize picture, QSize area);

/// `position` as fractions of the rectangle's width and height. No value outside it.
std::optional<QPointF> fractionWithin(const QRect& rectangle, QPointF position);

} // namespace corvane
