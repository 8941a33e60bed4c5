#pragma once

#include <QFrame>

class QComboBox;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace corvane {

class SettingsController;

/// The home page's lower card: the partner to connect to, and the recent and favourite partners.
class ConnectCard : public QFrame {
    Q_OBJECT

public:
    /// `settings` is borrowed; it keeps the partner lists.
    explicit ConnectCard(SettingsController* settings, QWidget* parent = nullptr);

    QString partnerText() const;
    QString password() const;

    /// Puts the ID at the head of the recent partners and shows it in the field.
    void rememberPartner(const QString& bareId);

    /// Gives the keyboard to the partner field; from there Tab leads to the password.
    void focusPartnerField();

    void setConnectEnabled(bool enabled);
    void setDisconnectEnabled(bool enabled);

Q_SIGNALS:
    void connectRequested();
    void disconnectRequested();
    /// The user wants to wake the partner in the field.
    void wakeRequested();

private:
    QLayout* createPartnerRow();
    QLayout* createButtonRow();
    void fillRecentPartners();
    void fillFavorites();
    void toggleFavorite();
    void updateStar();

    SettingsController* const m_settings;
    QComboBox* m_partner = nullptr;
    QPushButton* m_star = nullptr;
    QListWidget* m_favorites = nullptr;
    QLineEdit* m_password = nullptr;
    QPushButton* m_connect = nullptr;
    QPushButton* m_disconnect = nullptr;
};

} // namespace corvane
