#include "demo/WindowTour.h"

#include "demo/Stage.h"
#include "harness/WaitFor.h"

#include <QStringList>

#include <utility>

namespace corvane::demo {

using namespace std::chrono_literals;
using harness::DisplayUser;

namespace {

/// A window opened by a button of the home page, and how many presses of Tab lead from the partner
/// field to the button; negative for Shift+Tab.
struct Opened {
    const char* title;
    int tabs;
};

constexpr Opened kHomeWindows[] = {
    {"Wake-on-LAN", 4},
    {"Change Session Password", -1},
    {"Settings", -5},
};

const QStringList kSettingsTabs{QStringLiteral("Display"), QStringLiteral("Network"),
                                QStringLiteral("Advanced")};

void pressTab(DisplayUser& user, int times) {
    using Modifiers = std::vector<xcb_keysym_t>;
    for (int i = 0; i < std::abs(times); ++i) {
        user.display().pressKey(harness::kKeyTab,
                                times < 0 ? Modifiers{harness::kKeyShift} : Modifiers{});
    }
}

bool photograph(Stage& stage, const QString& title, const QString& caption) {
    const QImage picture = stage.viewer.look(title);
    stage.sheet.add(caption, picture);
    return !picture.isNull();
}

void photographSettings(Stage& stage, const QString& title) {
    for (const QString& tab : kSettingsTabs) {
        photograph(stage, title, title + QStringLiteral(": ") + tab);
        stage.viewer.display().pressKey(harness::kKeyRight);
    }
}

bool tourWindow(Stage& stage, const Opened& opened) {
    const QString title = QLatin1String(opened.title);
    pressTab(stage.viewer, opened.tabs);
    if (!stage.viewer.openByKey(title, ' ', {})) {
        return false;
    }
    if (title == u"Settings") {
        photographSettings(stage, title);
    } else {
        photograph(stage, title, title);
    }
    const bool closed =
        stage.viewer.escape(title) && stage.viewer.clickInto(kHomeTitle, kBesideAll);
    pressTab(stage.viewer, -opened.tabs);
    return closed;
}

/// Shows the question that someone without a password causes on a partner's machine.
bool tourQuestion(Stage& stage) {
    const QString title = QStringLiteral("Incoming Connection");
    stage.session.server().pushText(
        stage.session.viewer().clientId(),
        QStringLiteral(R"({"type":"SESSION_HANDSHAKE_REQUEST","session_id":"demo-question",)"
                       R"("master_client_id":"%1","purpose":"Remote support"})")
            .arg(stage.session.target().clientId()));
    const bool shown = stage.viewer.sees(title) && photograph(stage, title, title);
    return shown && stage.viewer.escape(title);
}

void report(Stage& stage, const QString& name, const QStringList& missing) {
    stage.report.check(name, missing.isEmpty(),
                       missing.isEmpty()
                           ? QStringLiteral("all opened and closed")
                           : QStringLiteral("missing: ") + missing.join(QStringLiteral(", ")));
}

/// Opens the menu to the right of the one at `neighbour`, by trial and error.
std::optional<QRect> openNextMenu(Stage& stage, const QRect& window, const QRect& neighbour) {
    harness::XDisplay& display = stage.viewer.display();
    for (int x = neighbour.left() + 24; x < neighbour.left() + 120; x += 16) {
        display.click({x, neighbour.top() - 14});
        std::optional<QRect> menu;
        harness::waitFor(
            [&] {
                menu = display.findPopup(window);
                return menu.has_value();
            },
            500ms);
        if (menu && menu->left() > neighbour.left()) {
            return menu;
        }
        if (menu) {
            display.pressKey(harness::kKeyEscape);
            harness::waitFor([&] { return !display.findPopup(window); }, 2s);
        }
    }
    return std::nullopt;
}

} // namespace

void tourHome(Stage& stage) {
    QStringList missing;
    if (!stage.viewer.clickInto(kHomeTitle, kBesideAll) ||
        !photograph(stage, kHomeTitle, QStringLiteral("Main window with an update"))) {
        missing << kHomeTitle;
    }
    stage.viewer.display().type(stage.session.target().clientId());
    for (const Opened& opened : kHomeWindows) {
        if (!tourWindow(stage, opened)) {
            missing << QLatin1String(opened.title);
        }
    }
    if (!tourQuestion(stage)) {
        missing << QStringLiteral("Incoming Connection");
    }
    report(stage, QStringLiteral("home windows"), missing);
}

void tourViewer(Stage& stage) {
    const QString info = QStringLiteral("Connection Information");
    harness::XDisplay& display = stage.viewer.display();
    QStringList missing;
    stage.viewer.clickInto(kViewerTitle, kToolBar);
    photograph(stage, kViewerTitle, QStringLiteral("Viewer"));

    const QRect window = display.findWindow(kViewerTitle).value_or(QRect());
    std::optional<QRect> scale;
    harness::achieve(
        [&] {
            display.pressKey('q', {harness::kKeyControl, harness::kKeyShift});
        },
        [&] { return (scale = display.findPopup(window)).has_value(); });
    photograph(stage, kViewerTitle, QStringLiteral("Viewer: Scale Mode"));
    display.pressKey(harness::kKeyEscape);
    harness::waitFor([&] { return !display.findPopup(window); }, 2s);
    if (!scale) {
        missing << QStringLiteral("Scale Mode");
    } else if (!openNextMenu(stage, window, *scale)) {
        missing << QStringLiteral("Switch Monitor");
    } else {
        photograph(stage, kViewerTitle, QStringLiteral("Viewer: Switch Monitor"));
        display.pressKey(harness::kKeyEscape);
    }

    stage.viewer.clickInto(kViewerTitle, kToolBar);
    if (!stage.viewer.openByKey(info, 'i', {harness::kKeyControl, harness::kKeyShift}) ||
        !photograph(stage, info, info) || !stage.viewer.escape(info)) {
        missing << info;
    }
    report(stage, QStringLiteral("viewer windows"), missing);
}

} // namespace corvane::demo
