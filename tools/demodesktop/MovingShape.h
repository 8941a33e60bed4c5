#pragma once

#include <QTimer>
#include <QWidget>

namespace corvane::demo {

/// A disc that circles in its area, redrawn about 30 times a second.
class MovingShape : public QWidget {
    Q_OBJECT

public:
    explicit MovingShape(QWidget* parent = nullptr);

    void setRunning(bool running);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer m_redraw;
    double m_seconds = 0.0;
};

} // namespace corvane::demo
