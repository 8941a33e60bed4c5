#pragma once

#include "RemoteDesktopWidget.h"

#include <QKeySequence>
#include <QWidget>

#include <functional>

class QMenu;
class QPushButton;

namespace corvane {

/// Page shown while this side views a partner: the remote screen and its tool bar.
class ViewerPage : public QWidget {
    Q_OBJECT

public:
    explicit ViewerPage(QWidget* parent = nullptr);

    RemoteDesktopWidget* view() const { return m_view; }

Q_SIGNALS:
    void monitorSwitchRequested(int monitorIndex);
    void disconnectRequested();

private:
    QWidget* createToolBar();
    QPushButton* createButton(QWidget* bar, const QString& objectName, const QString& icon,
                              const QString& toolTip);
    void addShortcut(const QString& keys, std::function<void()> action);
    QMenu* createScaleMenu(QWidget* parent);
    QMenu* createMonitorMenu(QWidget* parent);

    RemoteDesktopWidget* m_view = nullptr;
};

} // namespace corvane
