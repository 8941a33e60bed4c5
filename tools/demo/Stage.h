#pragma once

#include "demo/ContactSheet.h"
#include "demo/DemoReport.h"
#include "harness/DisplayUser.h"
#include "harness/LiveSession.h"

#include <QPoint>

namespace corvane::demo {

const inline QString kHomeTitle = QStringLiteral("Corvane - Remote Access");
const inline QString kViewerTitle = QStringLiteral("Corvane - ");

/// A point in every main window that lies beside all widgets.
inline constexpr QPoint kBesideAll(12, -12);

/// A point on the viewer's tool bar between the buttons.
inline constexpr QPoint kToolBar(-240, 20);

/// What the acts of the demonstration share. The session has been started.
struct Stage {
    harness::LiveSession& session;
    DemoReport& report;
    ContactSheet sheet{};
    harness::DisplayUser viewer{session.viewerDisplay()};
    harness::DisplayUser target{session.targetDisplay()};
};

} // namespace corvane::demo
