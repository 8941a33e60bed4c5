#include "ui/HomePage.h"

#include "app/settings/DeploymentConstants.h"
#include "ui/CardParts.h"
#include "ui/ConnectCard.h"
#include "ui/DeviceCard.h"
#include "ui/UiColors.h"
#include "ui/UpdateBanner.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr int kHeaderButtonSide = 32;
constexpr int kCopyButtonSide = 28;

} // namespace

HomePage::HomePage(SettingsController* settings, QWidget* parent) : QWidget(parent) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 12);
    layout->setSpacing(12);
    m_deviceCard = new DeviceCard(this);
    m_connectCard = new ConnectCard(settings, this);
    auto* const version = new QLabel(QString::fromLatin1(deployment::kApplicationVersion), this);
    version->setObjectName(QStringLiteral("versionLabel"));
    version->setStyleSheet(
        QStringLiteral("color: %1; font-size: 10px;").arg(QLatin1String(colors::kSecondary)));

    m_updateBanner = new UpdateBanner(this);
    m_captureNotice = createCaptureNotice();
    layout->addLayout(createHeader());
    layout->addWidget(m_updateBanner);
    layout->addWidget(m_captureNotice);
    layout->addWidget(m_deviceCard);
    layout->addWidget(m_connectCard);
    layout->addWidget(createCaption(tr("PAIRING CODE"), this));
    layout->addLayout(createPairingRow());
    layout->addWidget(createAdminLink());
    layout->addStretch(1);
    layout->addWidget(version, 0, Qt::AlignRight);
}

QLayout* HomePage::createHeader() {
    auto* const row = new QHBoxLayout;
    auto* const title = new QLabel(QStringLiteral("Corvane"), this);
    title->setObjectName(QStringLiteral("titleLabel"));
    title->setStyleSheet(QStringLiteral("color: %1; font-size: 20px; font-weight: bold; "
                                        "letter-spacing: 1px;")
                             .arg(QLatin1String(colors::kAccent)));
    auto* const admin = createIconButton(QStringLiteral("adminButton"), QStringLiteral("admin"),
                                         tr("Admin Panel"), kHeaderButtonSide, this);
    connect(admin, &QPushButton::clicked, this, &HomePage::adminPanelRequested);
    auto* const settings =
        createIconButton(QStringLiteral("settingsButton"), QStringLiteral("settings"),
                         tr("Settings"), kHeaderButtonSide, this);
    connect(settings, &QPushButton::clicked, this, &HomePage::settingsRequested);
    row->addWidget(title, 1);
    row->addWidget(admin);
    row->addWidget(settings);
    return row;
}

QLayout* HomePage::createPairingRow() {
    auto* const row = new QHBoxLayout;
    m_pairingCode =
        createValueLabel(QStringLiteral("pairingCodeLabel"),
                         QStringLiteral("color: %1; font-size: 18px; font-weight: bold; "
                                        "font-family: monospace;")
                             .arg(QLatin1String(colors::kAttention)),
                         this);
    auto* const copy =
        createIconButton(QStringLiteral("copyPairingCodeButton"), QStringLiteral("content_copy"),
                         tr("Copy Pairing Code"), kCopyButtonSide, this);
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_pairingCode->text()); });
    row->addWidget(m_pairingCode, 1);
    row->addWidget(copy);
    return row;
}

QLabel* HomePage::createAdminLink() {
    const QUrl url(QString::fromLatin1(deployment::kAdminUrl));
    const QString link = QStringLiteral("<a href=\"%1\" style=\"color: %2;\">%3</a>")
                             .arg(url.toString(), QLatin1String(colors::kAccent), url.host());
    auto* const label = new QLabel(tr("Add this device at %1").arg(link), this);
    label->setObjectName(QStringLiteral("adminLink"));
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    label->setStyleSheet(
        QStringLiteral("color: %1; font-size: 11px;").arg(QLatin1String(colors::kSecondary)));
    connect(label, &QLabel::linkActivated, this, &HomePage::adminPanelRequested);
    return label;
}

QLabel* HomePage::createCaptureNotice() {
    auto* const label = new QLabel(this);
    label->setObjectName(QStringLiteral("captureNotice"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setStyleSheet(
        QStringLiteral("color: %1; font-size: 11px;").arg(QLatin1String(colors::kAttention)));
    label->hide();
    return label;
}

bool HomePage::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        Q_EMIT minimumHeightChanged(minimumSizeHint().height());
    }
    return handled;
}

void HomePage::setPairingCode(const QString& code) {
    m_pairingCode->setText(code);
}

void HomePage::setCaptureObstacle(CaptureObstacle obstacle) {
    if (obstacle == CaptureObstacle::Wayland) {
        m_captureNotice->setText(
            tr("On a Wayland desktop, partners can neither see nor control this screen; chat and "
               "files work, and so does connecting to others. To share the screen, log in to an "
               "X11 session."));
    }
    m_captureNotice->setVisible(obstacle != CaptureObstacle::None);
}

} // namespace corvane
