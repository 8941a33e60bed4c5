#pragma once

#include <QObject>

namespace corvane {

/// Installed on the application, gives every push button the pointing-hand cursor as it is shown.
class ButtonCursorFilter : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Never consumes an event.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace corvane
