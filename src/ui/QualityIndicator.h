#pragma once

#include "services/ConnectionStats.h"

#include <QWidget>

namespace corvane {

/// Round swatch that shows how good the connection is; its tool tip gives the figures.
class QualityIndicator : public QWidget {
    Q_OBJECT

public:
    explicit QualityIndicator(QWidget* parent = nullptr);

    void showQuality(QualityLevel level, const ConnectionStats& stats);

    /// Restores the look of a session that has not been measured yet.
    void reset();

private:
    void setColor(const char* color);
};

} // namespace corvane
