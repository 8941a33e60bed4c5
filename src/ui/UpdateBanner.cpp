#include "ui/UpdateBanner.h"

#include "ui/UiColors.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace corvane {

UpdateBanner::UpdateBanner(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("updateBanner"));
    setStyleSheet(
        QStringLiteral("QFrame#updateBanner { background-color: %1; border: 1px solid %2; "
                       "border-radius: 6px; padding: 8px; }"
                       "QPushButton#primaryButton, QPushButton#primaryButton:disabled { "
                       "background-color: %2; color: %3; }")
            .arg(QLatin1String(colors::kDeepAccent), QLatin1String(colors::kAccent),
                 QLatin1String(colors::kField)));
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("updateText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_button = new QPushButton(this);
    m_button->setObjectName(QStringLiteral("primaryButton"));
    connect(m_button, &QPushButton::clicked, this, &UpdateBanner::startDownload);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_button);
    reset();
    hide();
}

void UpdateBanner::announce(const QString& version, const QString& downloadUrl) {
    m_downloadUrl = downloadUrl;
    m_text->setText(tr("Update available: v%1").arg(version));
    show();
}

void UpdateBanner::startDownload() {
    m_button->setEnabled(false);
    m_button->setText(tr("Downloading..."));
    Q_EMIT downloadRequested(m_downloadUrl);
}

void UpdateBanner::setProgress(int percent) {
    m_button->setToolTip(QStringLiteral("%1 %").arg(percent));
}

void UpdateBanner::reset() {
    m_button->setEnabled(true);
    m_button->setText(tr("Update Now"));
    m_button->setToolTip({});
}

} // namespace corvane
