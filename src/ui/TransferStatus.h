#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace corvane {

/// The progress of the current file, and one line about it. Uploads keep the event loop from
/// running, so the calls that report progress paint it themselves.
///
/// Object names: "transferProgress" and "transferStatus".
class TransferStatus : public QWidget {
    Q_OBJECT

public:
    explicit TransferStatus(QWidget* parent = nullptr);

    /// Shown literally.
    void showText(const QString& text);

    void showPercent(int percent);
    void showSpeed(int bytesPerSecond, int secondsLeft);
    void hideSpeed();

private:
    QProgressBar* m_progress = nullptr;
    QLabel* m_text = nullptr;
    QElapsedTimer m_sincePainted;
};

} // namespace corvane
