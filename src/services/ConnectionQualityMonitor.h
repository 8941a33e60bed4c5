#pragma once

#include "services/ConnectionStats.h"
#include "services/TrafficTally.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <mutex>

namespace corvane {

/// Turns a running session's counters into statistics and a quality level once a second.
///
/// The counting functions and the getters may be called from any thread; everything else belongs to
/// the object's thread, where the signals are emitted.
class ConnectionQualityMonitor : public QObject {
    Q_OBJECT

public:
    explicit ConnectionQualityMonitor(QObject* parent = nullptr);

    /// Starts measuring from zero.
    void start();
    void stop();

    ConnectionStats stats() const; ///< as last published
    QualityLevel qualityLevel() const;
    QString summaryText() const { return summaryText(stats()); }

    /// One line of figures for the user.
    static QString summaryText(const ConnectionStats& stats);

    void countFrame();
    void countDroppedFrame();
    void addBytesSent(qint64 bytes);
    void addBytesReceived(qint64 bytes);
    void setLatency(double milliseconds);

Q_SIGNALS:
    void statsUpdated(corvane::ConnectionStats stats);
    void qualityChanged(corvane::QualityLevel level);

public Q_SLOTS:
    void onUpdateTick();

private:
    struct Counters {
        TrafficTally tick; ///< both directions
        int64_t bytesSent = 0;
        int64_t bytesReceived = 0;
        int64_t framesDropped = 0;
        double latencyMs = 0;
    };

    void clear();

    QTimer m_timer;
    QElapsedTimer m_uptime;
    mutable std::mutex m_mutex; ///< guards the members below
    Counters m_counters;
    ConnectionStats m_stats;
    QualityLevel m_level = QualityLevel::Good;
};

} // namespace corvane
