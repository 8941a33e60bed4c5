#include "ui/ViewerPage.h"

#include "ui/OpenGlProbe.h"
#include "ui/RemoteDesktopWidget.h"
#include "ui/WindowGeometry.h"
#include "ui/WindowRenewal.h"

#include <QVBoxLayout>

#include <utility>

namespace corvane {

ViewerPage::ViewerPage(QWidget* parent) : QWidget(parent) {
    m_toolBar = new ViewerToolBar(this);
    connect(m_toolBar, &ViewerToolBar::fullScreenRequested, this,
            [this] { toggleFullScreen(*window()); });
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_toolBar);
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

bool ViewerPage::showFrame(std::shared_ptr<DecodedFrame> frame) {
    if (m_view != nullptr) {
        m_view->updateFrame(std::move(frame));
    }
    return m_view != nullptr;
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
        m_layout->addWidget(m_screen, 1);
        return;
    }
    m_view = new RemoteDesktopWidget;
    connect(m_toolBar, &ViewerToolBar::scaleModeChosen, m_view, &RemoteDesktopWidget::setScaleMode);
    connect(m_view, &RemoteDesktopWidget::inputEvent, this, &ViewerPage::inputEvent);
    m_screen = m_view;
    // Qt draws a window without OpenGL until a widget in it needs OpenGL.
    renewWindow(*window(), [this] { m_layout->addWidget(m_view, 1); });
}

} // namespace corvane
