#pragma once

#include <QObject>
#include <QString>

namespace corvane {

class AuthController;
class MessageBoxes;

/// Asks for a new session password and sets it when it is acceptable. Dialog:
/// "changePasswordDialog".
class ChangePasswordPrompt : public QObject {
    Q_OBJECT

public:
    /// All are borrowed; the dialog opens over `window`.
    ChangePasswordPrompt(AuthController* auth, MessageBoxes* boxes, QWidget* window);

    void ask();

Q_SIGNALS:
    void passwordChanged(QString password);

private:
    void change(const QString& password);

    AuthController* const m_auth;
    MessageBoxes* const m_boxes;
    QWidget* const m_window;
};

} // namespace corvane
