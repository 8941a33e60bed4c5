#include "ui/ConnectionInfoDialog.h"

#include "common/PartnerId.h"
#include "common/ValueFormats.h"
#include "services/ConnectionQualityMonitor.h"
#include "session/SessionManager.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// Texts from the session are shown literally and can be copied.
QLabel* addRow(QFormLayout* form, const QString& caption, const QString& objectName,
               const QString& value) {
    auto* const label = new QLabel(value, form->parentWidget());
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(caption, label);
    return label;
}

quint64 nonNegative(int64_t count) {
    return static_cast<quint64>(qMax<int64_t>(count, 0));
}

} // namespace

ConnectionInfoDialog::ConnectionInfoDialog(const SessionManager* session,
                                           const ConnectionQualityMonitor* monitor, QWidget* parent)
    : QDialog(parent), m_monitor(monitor) {
    setWindowTitle(tr("Connection Information"));
    setMinimumWidth(360);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(createSessionGroup(*session));
    layout->addWidget(createQualityGroup());
    layout->addStretch();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &ConnectionInfoDialog::reject);
    layout->addWidget(buttons);

    refresh();
    connect(&m_timer, &QTimer::timeout, this, &ConnectionInfoDialog::refresh);
    m_timer.start(1000ms);
}

QWidget* ConnectionInfoDialog::createSessionGroup(const SessionManager& session) {
    auto* const group = new QGroupBox(tr("Session"), this);
    auto* const form = new QFormLayout(group);
    addRow(form, tr("Session ID:"), QStringLiteral("sessionIdValue"), session.sessionId());
    addRow(form, tr("Remote ID:"), QStringLiteral("remoteIdValue"),
           formatPartnerId(session.peerClientId()));
    addRow(form, tr("Role:"), QStringLiteral("roleValue"),
           session.role() == SessionRole::Master ? tr("Master (Viewer)") : tr("Target (Sharing)"));
    addRow(form, tr("Transport:"), QStringLiteral("transportValue"),
           session.transportMethod().toUpper());
    return group;
}

QWidget* ConnectionInfoDialog::createQualityGroup() {
    auto* const group = new QGroupBox(tr("Connection Quality"), this);
    auto* const form = new QFormLayout(group);
    const QString unknown = QStringLiteral("—");
    m_qualityValues = {
        addRow(form, tr("FPS:"), QStringLiteral("fpsValue"), unknown),
        addRow(form, tr("Latency:"), QStringLiteral("latencyValue"), unknown),
        addRow(form, tr("Bandwidth:"), QStringLiteral("bandwidthValue"), unknown),
        addRow(form, tr("Sent:"), QStringLiteral("sentValue"), unknown),
        addRow(form, tr("Received:"), QStringLiteral("receivedValue"), unknown),
        addRow(form, tr("Dropped Frames:"), QStringLiteral("droppedFramesValue"), unknown),
        addRow(form, tr("Uptime:"), QStringLiteral("uptimeValue"), unknown),
    };
    return group;
}

void ConnectionInfoDialog::refresh() {
    if (m_monitor) {
        showStats(m_monitor->stats());
    }
}

void ConnectionInfoDialog::showStats(const ConnectionStats& stats) {
    const double kbps = stats.bandwidthKbps;
    const std::array<QString, 7> texts = {
        QString::number(stats.fps, 'f', 1),
        tr("%1 ms").arg(stats.latencyMs, 0, 'f', 1),
        kbps > 1000 ? tr("%1 Mbps").arg(kbps / 1000, 0, 'f', 1)
                    : tr("%1 Kbps").arg(kbps, 0, 'f', 0),
        formatByteSize(nonNegative(stats.bytesSent)),
        formatByteSize(nonNegative(stats.bytesReceived)),
        QString::number(stats.framesDropped),
        formatDuration(stats.uptimeSeconds),
    };
    for (size_t i = 0; i < texts.size(); ++i) {
        m_qualityValues[i]->setText(texts[i]);
    }
}

} // namespace corvane
