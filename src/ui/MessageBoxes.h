#pragma once

#include <QHash>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

namespace corvane {

/// Message boxes that never block: inside a signal of the session or the network, a nested event
/// loop could see its sender destroyed. One box per title: a newer one replaces the older, so that
/// a misbehaving peer or server cannot pile them up. Texts are shown literally.
///
/// Object names: "warningBox", "informationBox" and "questionBox".
class MessageBoxes : public QObject {
    Q_OBJECT

public:
    explicit MessageBoxes(QWidget* window);

    void warn(const QString& title, const QString& text);

    /// Calls `closed`, if there is one, once the box is gone.
    void inform(const QString& title, const QString& text, std::function<void()> closed = {});

    /// Calls `answered` with true for Yes and false for anything else, including when the box is
    /// replaced.
    void ask(const QString& title, const QString& text, std::function<void(bool yes)> answered);

private:
    QMessageBox* tell(QMessageBox::Icon icon, const QString& objectName, const QString& title,
                      const QString& text);
    QMessageBox* create(QMessageBox::Icon icon, const QString& title, const QString& text);

    QWidget* const m_window;
    QHash<QString, QPointer<QMessageBox>> m_open;
};

} // namespace corvane
