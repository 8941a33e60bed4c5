#include "ui/ConnectCard.h"

#include "app/settings/SettingsController.h"
#include "common/PartnerId.h"
#include "ui/CardParts.h"
#include "ui/UiColors.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr int kStarSide = 28;
constexpr int kWakeSide = 32;
constexpr int kFavoritesHeight = 84; // three rows and a half, so that a fourth is noticed

} // namespace

ConnectCard::ConnectCard(SettingsController* settings, QWidget* parent)
    : QFrame(parent), m_settings(settings) {
    styleCard(this, QStringLiteral("connectCard"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(8);
    layout->addWidget(createCaption(tr("CONNECT TO PARTNER"), this));
    layout->addLayout(createPartnerRow());

    m_favorites = new QListWidget(this);
    m_favorites->setObjectName(QStringLiteral("favoritesList"));
    m_favorites->setAccessibleName(tr("Favorites"));
    m_favorites->setFixedHeight(kFavoritesHeight);
    m_favorites->setStyleSheet(QStringLiteral("QListWidget { background-color: %1; }")
                                   .arg(QLatin1String(colors::kFavorites)));
    connect(m_favorites, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        m_partner->setCurrentText(item->text());
        m_password->setFocus();
    });
    layout->addWidget(m_favorites);

    m_password = new QLineEdit(this);
    m_password->setObjectName(QStringLiteral("partnerPasswordEdit"));
    m_password->setPlaceholderText(tr("Password"));
    m_password->setEchoMode(QLineEdit::Password);
    m_password->setAccessibleName(m_password->placeholderText());
    connect(m_password, &QLineEdit::returnPressed, this, [this] {
        if (m_connect->isEnabled()) {
            Q_EMIT connectRequested();
        }
    });
    layout->addWidget(m_password);
    layout->addLayout(createButtonRow());

    setTabOrder(m_partner, m_password);
    setTabOrder(m_password, m_connect);
    fillRecentPartners();
    fillFavorites();
    updateStar();
}

QLayout* ConnectCard::createPartnerRow() {
    auto* const row = new QHBoxLayout;
    m_partner = new QComboBox(this);
    m_partner->setObjectName(QStringLiteral("partnerCombo"));
    m_partner->setEditable(true);
    m_partner->setInsertPolicy(QComboBox::NoInsert);
    m_partner->lineEdit()->setObjectName(QStringLiteral("partnerEdit"));
    m_partner->lineEdit()->setPlaceholderText(tr("Partner ID  (XXX XXX XXX)"));
    m_partner->setAccessibleName(tr("Partner ID"));
    m_partner->lineEdit()->setAccessibleName(tr("Partner ID"));
    connect(m_partner, &QComboBox::editTextChanged, this, &ConnectCard::updateStar);
    m_star = createIconButton(QStringLiteral("favoriteButton"), QStringLiteral("star_border"),
                              tr("Add to favorites"), kStarSide, this);
    connect(m_star, &QPushButton::clicked, this, &ConnectCard::toggleFavorite);
    auto* const wake = createIconButton(QStringLiteral("wakeButton"), QStringLiteral("power"),
                                        tr("Wake-on-LAN"), kWakeSide, this);
    connect(wake, &QPushButton::clicked, this, &ConnectCard::wakeRequested);
    row->addWidget(m_partner, 1);
    row->addWidget(m_star);
    row->addWidget(wake);
    return row;
}

QLayout* ConnectCard::createButtonRow() {
    auto* const row = new QHBoxLayout;
    m_connect = new QPushButton(tr("Connect"), this);
    m_connect->setObjectName(QStringLiteral("primaryButton"));
    m_disconnect = new QPushButton(tr("Disconnect"), this);
    m_disconnect->setObjectName(QStringLiteral("disconnectButton"));
    connect(m_connect, &QPushButton::clicked, this, &ConnectCard::connectRequested);
    connect(m_disconnect, &QPushButton::clicked, this, &ConnectCard::disconnectRequested);
    setConnectEnabled(false);
    setDisconnectEnabled(false);
    row->addWidget(m_connect);
    row->addWidget(m_disconnect);
    return row;
}

QString ConnectCard::partnerText() const {
    return m_partner->currentText();
}

QString ConnectCard::password() const {
    return m_password->text();
}

void ConnectCard::rememberPartner(const QString& bareId) {
    m_settings->addRecentPartner(bareId);
    fillRecentPartners();
    m_partner->setCurrentText(formatPartnerId(bareId));
}

void ConnectCard::focusPartnerField() {
    m_partner->setFocus();
}

void ConnectCard::setConnectEnabled(bool enabled) {
    m_connect->setEnabled(enabled);
}

void ConnectCard::setDisconnectEnabled(bool enabled) {
    m_disconnect->setEnabled(enabled);
}

void ConnectCard::fillRecentPartners() {
    const QString typed = m_partner->currentText();
    const QSignalBlocker blocker(m_partner);
    m_partner->clear();
    for (const QString& id : m_settings->recentPartners()) {
        m_partner->addItem(formatPartnerId(id));
    }
    m_partner->setCurrentIndex(-1);
    m_partner->setEditText(typed);
}

void ConnectCard::fillFavorites() {
    m_favorites->clear();
    for (const QString& id : m_settings->favorites()) {
        m_favorites->addItem(formatPartnerId(id));
    }
    m_favorites->setVisible(m_favorites->count() > 0);
}

void ConnectCard::toggleFavorite() {
    const QString id = barePartnerId(m_partner->currentText());
    if (id.size() != 9) {
        return;
    }
    if (m_settings->favorites().contains(id)) {
        m_settings->removeFavorite(id);
    } else {
        m_settings->addFavorite(id);
    }
    updateStar();
    fillFavorites();
}

void ConnectCard::updateStar() {
    const bool favorite = m_settings->favorites().contains(barePartnerId(m_partner->currentText()));
    m_star->setIcon(
        QIcon(favorite ? QStringLiteral(":/icons/star") : QStringLiteral(":/icons/star_border")));
}

} // namespace corvane
