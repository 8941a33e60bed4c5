#include "ui/ViewerToolBar.h"

#include "ui/QualityIndicator.h"
#include "ui/UiColors.h"

#include <QActionGroup>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>

#include <array>
#include <utility>

namespace corvane {

namespace {

constexpr int kMonitorEntries = 4;

} // namespace

ViewerToolBar::ViewerToolBar(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("viewerToolBar"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#viewerToolBar { background-color: %1; }")
                      .arg(QLatin1String(colors::kField)));

    auto* const info = createButton(QStringLiteral("infoButton"), QStringLiteral("info"),
                                    tr("Info  (Ctrl+Shift+I)"), QStringLiteral("Ctrl+Shift+I"),
                                    &ViewerToolBar::infoRequested);
    auto* const files = createButton(QStringLiteral("filesButton"), QStringLiteral("folder"),
                                     tr("Files  (Ctrl+Shift+F)"), QStringLiteral("Ctrl+Shift+F"),
                                     &ViewerToolBar::filesRequested);
    m_chat = createButton(QStringLiteral("chatButton"), QStringLiteral("chat"),
                          tr("Chat  (Ctrl+Shift+C)"), QStringLiteral("Ctrl+Shift+C"),
                          &ViewerToolBar::chatRequested);
    setChatWaiting(false);

    auto* const scale = createButton(QStringLiteral("scaleButton"), QStringLiteral("aspect_ratio"),
                                     tr("Scale Mode  (Ctrl+Shift+Q)"));
    scale->setMenu(createScaleMenu(scale));
    addShortcut(QStringLiteral("Ctrl+Shift+Q"), [scale] { scale->showMenu(); });
    auto* const monitor = createButton(QStringLiteral("monitorButton"),
                                       QStringLiteral("desktop_windows"), tr("Switch Monitor"));
    monitor->setMenu(createMonitorMenu(monitor));
    auto* const fullScreen = createButton(
        QStringLiteral("fullScreenButton"), QStringLiteral("fullscreen"), tr("Fullscreen  (F11)"),
        QStringLiteral("F11"), &ViewerToolBar::fullScreenRequested);
    m_quality = new QualityIndicator(this);
    auto* const disconnect =
        createButton(QStringLiteral("viewerDisconnectButton"), QStringLiteral("link_off"),
                     tr("Disconnect  (Ctrl+Shift+D)"), QStringLiteral("Ctrl+Shift+D"),
                     &ViewerToolBar::disconnectRequested);

    m_summary = new QLabel(this);
    m_summary->setObjectName(QStringLiteral("qualitySummaryLabel"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_summary->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_summary->setStyleSheet(
        QStringLiteral("color: %1; font-size: 11px;").arg(QLatin1String(colors::kSecondary)));

    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->setSpacing(4);
    for (QPushButton* const button : {info, files, m_chat, scale, monitor, fullScreen}) {
        layout->addWidget(button);
    }
    layout->addWidget(m_summary, 1);
    layout->addWidget(m_quality);
    layout->addWidget(disconnect);
}

void ViewerToolBar::setChatWaiting(bool waiting) {
    m_chat->setText(waiting ? tr("Chat (!)") : tr("Chat"));
}

void ViewerToolBar::setSummary(const QString& text) {
    m_summary->setText(text);
}

QPushButton* ViewerToolBar::createButton(const QString& objectName, const QString& icon,
                                         const QString& toolTip) {
    auto* const button = new QPushButton(QIcon(QStringLiteral(":/icons/") + icon), {}, this);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    // The keyboard belongs to the partner's machine.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QPushButton* ViewerToolBar::createButton(const QString& objectName, const QString& icon,
                                         const QString& toolTip, const QString& keys,
                                         void (ViewerToolBar::*requested)()) {
    auto* const button = createButton(objectName, icon, toolTip);
    connect(button, &QPushButton::clicked, this, requested);
    addShortcut(keys, [this, requested] { (this->*requested)(); });
    return button;
}

void ViewerToolBar::addShortcut(const QString& keys, std::function<void()> action) {
    auto* const shortcut = new QShortcut(QKeySequence(keys), this);
    shortcut->setContext(Qt::WindowShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, std::move(action));
}

QMenu* ViewerToolBar::createScaleMenu(QWidget* parent) {
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
        connect(action, &QAction::triggered, this,
                [this, scaleMode = mode] { Q_EMIT scaleModeChosen(scaleMode); });
    }
    return menu;
}

QMenu* ViewerToolBar::createMonitorMenu(QWidget* parent) {
    auto* const menu = new QMenu(parent);
    menu->setObjectName(QStringLiteral("monitorMenu"));
    for (int index = 0; index < kMonitorEntries; ++index) {
        connect(menu->addAction(tr("Monitor %1").arg(index + 1)), &QAction::triggered, this,
                [this, index] { Q_EMIT monitorChosen(index); });
    }
    return menu;
}

} // namespace corvane
