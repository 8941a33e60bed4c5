#pragma once

#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <array>

class QFormLayout;
class QLabel;

namespace corvane {

class ConnectionQualityMonitor;
class SessionManager;
struct ConnectionStats;

/// Details of the running session, as they were when the dialog was created, and its quality, which
/// follows the monitor once a second.
///
/// Object names: "sessionIdValue", "remoteIdValue", "roleValue", "transportValue", "fpsValue",
/// "latencyValue", "bandwidthValue", "sentValue", "receivedValue", "droppedFramesValue" and
/// "uptimeValue".
class ConnectionInfoDialog : public QDialog {
    Q_OBJECT

public:
    /// Both are borrowed; the session only for this call. The monitor may be null and may be
    /// destroyed before the dialog: the quality then stays as it is.
    ConnectionInfoDialog(const SessionManager* session, const ConnectionQualityMonitor* monitor,
                         QWidget* parent = nullptr);

    void showStats(const ConnectionStats& stats);

private:
    QWidget* createSessionGroup(const SessionManager& session);
    QWidget* createQualityGroup();
    void refresh();

    const QPointer<const ConnectionQualityMonitor> m_monitor;
    std::array<QLabel*, 7> m_qualityValues{};
    QTimer m_timer{this};
};

} // namespace corvane
