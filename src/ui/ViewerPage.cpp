#include "ViewerPage.h"

#include "OpenGlProbe.h"
#include "RemoteDesktopWidget.h"

#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace corvane {

ViewerPage::ViewerPage(QWidget* parent) : QWidget(parent) {
    m_toolBar = new ViewerToolBar(this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolBar);
}

void ViewerPage::startViewing() {
    if (m_screen == nullptr) {
        createView();
    }
    if (m_view != nullptr) {
        m_view->setViewingMode(true);
        m_view->setFocus();
    }
}

void ViewerPage::stopViewing() {
    if (m_view != nullptr) {
        m_view->setViewingMode(false);
    }
}

void ViewerPage::showFrame(std::shared_ptr<DecodedFrame> frame) {
    if (m_view != nullptr) {
        m_view->updateFrame(std::move(frame));
    }
}

void ViewerPage::clearPicture() {
    if (m_view != nullptr) {
        m_view->clearPicture();
    }
}

void ViewerPage::createView() {
    if (!isOpenGlUsable()) {
        m_screen = new QWidget;
        m_screen->setStyleSheet(QStringLiteral("background: black"));
        layout()->addWidget(m_screen);
        return;
    }
    m_view = new RemoteDesktopWidget;
    connect(m_toolBar, &ViewerToolBar::scaleModeChosen, m_view, &RemoteDesktopWidget::setScaleMode);
    connect(m_toolBar, &ViewerToolBar::fullScreenRequested, m_view,
            &RemoteDesktopWidget::toggleFullScreen);
    connect(m_view, &RemoteDesktopWidget::inputEvent, this, &ViewerPage::inputEvent);
    m_screen = m_view;
    addToWindow(m_view);
}

void ViewerPage::addToWindow(QWidget* view) {
    // Qt makes a window anew for its first OpenGL child, and does not show it again.
    QWidget* const top = window();
    const bool visible = top->isVisible();
    const Qt::WindowStates states = top->windowState() & ~Qt::WindowActive;
    top->setAttribute(Qt::WA_Moved); // it stays where it is
    top->hide();
    layout()->addWidget(view);
    if (top->windowHandle() != nullptr) {
        top->windowHandle()->setWindowStates(states);
    }
    top->setVisible(visible);
}

} // namespace corvane
