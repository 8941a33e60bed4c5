#pragma once

#include <QFrame>

class QLabel;
class QLayout;

namespace corvane {

/// The home page's upper card: this device's ID and session password, and the status line.
class DeviceCard : public QFrame {
    Q_OBJECT

public:
    explicit DeviceCard(QWidget* parent = nullptr);

    /// `clientId` as the server issued it.
    void setClientId(const QString& clientId);
    void setPassword(const QString& password);
    void setStatus(const QString& text, const QString& color);

    /// The texts of a device that has logged out.
    void showLoggedOut();

Q_SIGNALS:
    void changePasswordRequested();

private:
    QLayout* createIdRow();
    QLayout* createPasswordRow();

    QLabel* m_id = nullptr;
    QLabel* m_password = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace corvane
