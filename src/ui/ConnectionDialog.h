#pragma once

#include <QDialog>

class QLineEdit;

namespace corvane {

class MessageBoxes;

/// Asks for a user's account on the server: an existing one to log in with, or a new one together
/// with a name for this device. Checks the input and passes it on unchanged; the receiver makes the
/// requests and closes the dialog.
///
/// Object names: "serverEdit"; "connectionTabs" with "loginUsernameEdit", "loginPasswordEdit",
/// "loginButton" and "registerUsernameEdit", "registerPasswordEdit", "registerClientNameEdit",
/// "registerButton".
class ConnectionDialog : public QDialog {
    Q_OBJECT

public:
    explicit ConnectionDialog(QWidget* parent = nullptr);

Q_SIGNALS:
    /// Neither is empty.
    void loginRequested(const QString& username, const QString& password);

    /// The password has at least 8 characters; `clientName` may be empty.
    void registerRequested(const QString& username, const QString& password,
                           const QString& clientName);

private:
    QWidget* createLoginPage();
    QWidget* createRegisterPage();
    void onLoginClicked();
    void onRegisterClicked();

    MessageBoxes* m_boxes = nullptr;
    QLineEdit* m_loginUsername = nullptr;
    QLineEdit* m_loginPassword = nullptr;
    QLineEdit* m_registerUsername = nullptr;
    QLineEdit* m_registerPassword = nullptr;
    QLineEdit* m_registerClientName = nullptr;
};

} // namespace corvane
