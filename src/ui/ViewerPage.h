#pragma once

#include "RemoteDesktopWidget.h"
#include "ViewerToolBar.h"

#include <QWidget>

namespace corvane {

/// Page shown while this side views a partner: the remote screen and its tool bar.
class ViewerPage : public QWidget {
    Q_OBJECT

public:
    explicit ViewerPage(QWidget* parent = nullptr);

    RemoteDesktopWidget* view() const { return m_view; }
    ViewerToolBar* toolBar() const { return m_toolBar; }

private:
    ViewerToolBar* m_toolBar = nullptr;
    RemoteDesktopWidget* m_view = nullptr;
};

} // namespace corvane
