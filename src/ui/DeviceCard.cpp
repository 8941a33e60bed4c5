#include "ui/DeviceCard.h"

#include "common/PartnerId.h"
#include "ui/CardParts.h"
#include "ui/UiColors.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr int kButtonSide = 28;

QString noPassword() {
    return QStringLiteral("------");
}

} // namespace

DeviceCard::DeviceCard(QWidget* parent) : QFrame(parent) {
    styleCard(this, QStringLiteral("deviceCard"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(6);
    layout->addWidget(createCaption(tr("YOUR ID"), this));
    layout->addLayout(createIdRow());
    layout->addWidget(createSeparator(this));
    layout->addWidget(createCaption(tr("PASSWORD"), this));
    layout->addLayout(createPasswordRow());
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("statusLabel"));
    m_status->setIndent(0); // an indented label would stand to the right of the others
    layout->addWidget(m_status);
    setStatus(tr("Connecting..."), QLatin1String(colors::kAttention));
}

QLayout* DeviceCard::createIdRow() {
    auto* const row = new QHBoxLayout;
    m_id = createValueLabel(QStringLiteral("clientIdLabel"),
                            QStringLiteral("color: %1; font-size: 26px; font-weight: bold; "
                                           "letter-spacing: 3px;")
                                .arg(QLatin1String(colors::kText)),
                            this);
    m_id->setText(tr("Connecting..."));
    auto* const copy =
        createIconButton(QStringLiteral("copyIdButton"), QStringLiteral("content_copy"),
                         tr("Copy ID"), kButtonSide, this);
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(barePartnerId(m_id->text())); });
    row->addWidget(m_id, 1);
    row->addWidget(copy);
    return row;
}

QLayout* DeviceCard::createPasswordRow() {
    auto* const row = new QHBoxLayout;
    m_password = createValueLabel(QStringLiteral("passwordLabel"),
                                  QStringLiteral("color: %1; font-size: 20px; font-weight: bold; "
                                                 "font-family: monospace; letter-spacing: 4px;")
                                      .arg(QLatin1String(colors::kAccent)),
                                  this);
    m_password->setText(noPassword());
    auto* const copy =
        createIconButton(QStringLiteral("copyPasswordButton"), QStringLiteral("content_copy"),
                         tr("Copy Password"), kButtonSide, this);
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_password->text()); });
    auto* const change =
        createIconButton(QStringLiteral("changePasswordButton"), QStringLiteral("lock_reset"),
                         tr("Change Password"), kButtonSide, this);
    connect(change, &QPushButton::clicked, this, &DeviceCard::changePasswordRequested);
    row->addWidget(m_password, 1);
    row->addWidget(copy);
    row->addWidget(change);
    return row;
}

void DeviceCard::setClientId(const QString& clientId) {
    m_id->setText(formatPartnerId(clientId));
}

void DeviceCard::setPassword(const QString& password) {
    m_password->setText(password);
}

void DeviceCard::setStatus(const QString& text, const QString& color) {
    m_status->setText(QStringLiteral("● ") + text);
    m_status->setStyleSheet(
        QStringLiteral("color: %1; font-size: 12px; padding-top: 4px;").arg(color));
}

void DeviceCard::showLoggedOut() {
    m_id->setText(tr("Not connected"));
    m_password->setText(noPassword());
}

} // namespace corvane
