#include "app/ButtonCursorFilter.h"

#include <QEvent>
#include <QPushButton>

namespace corvane {

bool ButtonCursorFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish) {
        if (auto* button = qobject_cast<QPushButton*>(watched)) {
            button->setCursor(Qt::PointingHandCursor);
        }
    }
    return false;
}

} // namespace corvane
