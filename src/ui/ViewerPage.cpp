#include "ViewerPage.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QIcon>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace corvane {

namespace {

constexpr int kMonitorEntries = 4;

} // namespace

ViewerPage::ViewerPage(QWidget* parent) : QWidget(parent) {
    m_view = new RemoteDesktopWidget(this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createToolBar());
    layout->addWidget(m_view, 1);
}

QWidget* ViewerPage::createToolBar() {
    auto* const bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("viewerToolBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setStyleSheet(QStringLiteral("QWidget#viewerToolBar { background-color: #0d1b2a; }"));

    auto* const scale =
        createButton(bar, QStringLiteral("scaleButton"), QStringLiteral("aspect_ratio"),
                     tr("Scale Mode  (Ctrl+Shift+Q)"));
    scale->setMenu(createScaleMenu(scale));
    addShortcut(QStringLiteral("Ctrl+Shift+Q"), [scale] { scale->showMenu(); });

    auto* const monitor = createButton(bar, QStringLiteral("monitorButton"),
                                       QStringLiteral("desktop_windows"), tr("Switch Monitor"));
    monitor->setMenu(createMonitorMenu(monitor));

    auto* const fullScreen = createButton(bar, QStringLiteral("fullScreenButton"),
                                          QStringLiteral("fullscreen"), tr("Fullscreen  (F11)"));
    connect(fullScreen, &QPushButton::clicked, m_view, &RemoteDesktopWidget::toggleFullScreen);
    addShortcut(QStringLiteral("F11"), [this] { m_view->toggleFullScreen(); });

    auto* const disconnect =
        createButton(bar, QStringLiteral("viewerDisconnectButton"), QStringLiteral("link_off"),
                     tr("Disconnect  (Ctrl+Shift+D)"));
    connect(disconnect, &QPushButton::clicked, this, &ViewerPage::disconnectRequested);
    addShortcut(QStringLiteral("Ctrl+Shift+D"), [this] { Q_EMIT disconnectRequested(); });

    auto* const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->setSpacing(4);
    layout->addWidget(scale);
    layout->addWidget(monitor);
    layout->addWidget(fullScreen);
    layout->addStretch(1);
    layout->addWidget(disconnect);
    return bar;
}

QPushButton* ViewerPage::createButton(QWidget* bar, const QString& objectName, const QString& icon,
                                      const QString& toolTip) {
    auto* const button = new QPushButton(QIcon(QStringLiteral(":/icons/") + icon), {}, bar);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    // The keyboard belongs to the partner's machine.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void ViewerPage::addShortcut(const QString& keys, std::function<void()> action) {
    auto* const shortcut = new QShortcut(QKeySequence(keys), this);
    shortcut->setContext(Qt::WindowShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, std::move(action));
}

QMenu* ViewerPage::createScaleMenu(QWidget* parent) {
    auto* const menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("scaleMenu"));
    auto* const group = new QActionGroup(menu);
    const std::array<std::pair<QString, ScaleMode>, 3> modes{{
        {tr("Fit to Window"), ScaleMode::Fit},
        {tr("Stretch to Fill"), ScaleMode::Stretch},
        {tr("Original Size"), ScaleMode::Original},
    }};
    for (const auto& [text, mode] : modes) {
        QAction* const action = group->addAction(menu->addAction(text));
        action->setCheckable(true);
        action->setChecked(mode == ScaleMode::Fit);
        connect(action, &QAction::triggered, m_view,
                [this, scaleMode = mode] { m_view->setScaleMode(scaleMode); });
    }
    return menu;
}

QMenu* ViewerPage::createMonitorMenu(QWidget* parent) {
    auto* const menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("monitorMenu"));
    for (int index = 0; index < kMonitorEntries; ++index) {
        connect(menu->addAction(tr("Monitor %1").arg(index + 1)), &QAction::triggered, this,
                [this, index] { Q_EMIT monitorSwitchRequested(index); });
    }
    return menu;
}

} // namespace corvane
