#include "ui/ChangePasswordPrompt.h"

#include "network/identity/AuthController.h"
#include "ui/MessageBoxes.h"

#include <QInputDialog>

namespace corvane {

ChangePasswordPrompt::ChangePasswordPrompt(AuthController* auth, MessageBoxes* boxes,
                                           QWidget* window)
    : QObject(window), m_auth(auth), m_boxes(boxes), m_window(window) {}

void ChangePasswordPrompt::ask() {
    auto* const dialog = new QInputDialog(m_window);
    dialog->setObjectName(QStringLiteral("changePasswordDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Change Session Password"));
    dialog->setLabelText(tr("New password (min 8 chars, uppercase + lowercase + digit):"));
    connect(dialog, &QInputDialog::textValueSelected, this, &ChangePasswordPrompt::change);
    dialog->open();
}

void ChangePasswordPrompt::change(const QString& password) {
    if (password.isEmpty()) {
        return;
    }
    const QString violation = AuthController::validatePassword(password);
    if (!violation.isEmpty()) {
        m_boxes->warn(tr("Invalid Password"), violation);
        return;
    }
    m_auth->setSessionPassword(password);
    Q_EMIT passwordChanged(password);
}

} // namespace corvane
