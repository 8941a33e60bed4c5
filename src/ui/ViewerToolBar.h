#pragma once

#include "ui/RemoteDesktopWidget.h"

#include <QWidget>

#include <functional>

class QLabel;
class QMenu;
class QPushButton;

namespace corvane {

class QualityIndicator;

/// The tool bar above the remote screen, and the shortcuts of its buttons, which work in the whole
/// window while the tool bar is visible.
class ViewerToolBar : public QWidget {
    Q_OBJECT

public:
    explicit ViewerToolBar(QWidget* parent = nullptr);

    /// Marks the chat button while an unread message waits.
    void setChatWaiting(bool waiting);

    QualityIndicator* qualityIndicator() const { return m_quality; }

    /// One line of figures; cut off when there is no room for it.
    void setSummary(const QString& text);

Q_SIGNALS:
    void infoRequested();
    void filesRequested();
    void chatRequested();
    void scaleModeChosen(corvane::ScaleMode mode);
    void monitorChosen(int monitorIndex);
    void fullScreenRequested();
    void disconnectRequested();

private:
    QPushButton* createButton(const QString& objectName, const QString& icon,
                              const QString& toolTip);
    QPushButton* createButton(const QString& objectName, const QString& icon,
                              const QString& toolTip, const QString& keys,
                              void (ViewerToolBar::*requested)());
    void addShortcut(const QString& keys, std::function<void()> action);
    QMenu* createScaleMenu(QWidget* parent);
    QMenu* createMonitorMenu(QWidget* parent);

    QPushButton* m_chat = nullptr;
    QualityIndicator* m_quality = nullptr;
    QLabel* m_summary = nullptr;
};

} // namespace corvane
