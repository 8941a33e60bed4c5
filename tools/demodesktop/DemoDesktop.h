#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>

namespace corvane::demo {

class MovingShape;
class ScrollingText;

/// A desktop with some activity, for a shared machine that has none: a clock, a scrolling text, a
/// moving shape and a field to type into.
///
/// Reports on standard output: "field: x y width height" and "echo: x y width height", the places
/// on the screen of the field and of the label that repeats its text; "focus: field" and "focus:
/// elsewhere" as the field gains and loses the keyboard; and "typed: text" each time the text
/// changes.
class DemoDesktop : public QWidget {
    Q_OBJECT

public:
    explicit DemoDesktop(QWidget* parent = nullptr);

    /// While not running, only the text field changes.
    void setRunning(bool running);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void reportGeometry() const;
    void showTime();

    QLabel* m_time = nullptr;
    QLineEdit* m_field = nullptr;
    QLabel* m_echo = nullptr;
    ScrollingText* m_text = nullptr;
    MovingShape* m_shape = nullptr;
    QTimer m_tick;
};

} // namespace corvane::demo
