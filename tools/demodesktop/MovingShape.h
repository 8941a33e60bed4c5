#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace corvane::demo {

/// A disc that goes round in its field, redrawn about 30 times a second.
class MovingShape : public QWidget {
    Q_OBJECT

public:
    explicit MovingShape(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QElapsedTimer m_clock;
    QTimer m_redraw;
};

} // namespace corvane::demo
