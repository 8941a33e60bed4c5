#include "ViewerPage.h"

#include <QVBoxLayout>

namespace corvane {

ViewerPage::ViewerPage(QWidget* parent) : QWidget(parent) {
    m_toolBar = new ViewerToolBar(this);
    m_view = new RemoteDesktopWidget(this);
    connect(m_toolBar, &ViewerToolBar::scaleModeChosen, m_view, &RemoteDesktopWidget::setScaleMode);
    connect(m_toolBar, &ViewerToolBar::fullScreenRequested, m_view,
            &RemoteDesktopWidget::toggleFullScreen);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
    layout->addWidget(m_view, 1);
}

} // namespace corvane
