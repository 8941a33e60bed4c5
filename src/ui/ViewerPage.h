#pragma once

#include "input/InputEvent.h"
#include "media/DecodedFrame.h"
#include "ui/ViewerToolBar.h"

#include <QWidget>

#include <memory>

class QVBoxLayout;

namespace corvane {

class RemoteDesktopWidget;

/// Page shown while this side views a partner: the remote screen and its tool bar. If the system
/// has no suitable OpenGL, the remote screen is a black area that takes no input.
class ViewerPage : public QWidget {
    Q_OBJECT

public:
    explicit ViewerPage(QWidget* parent = nullptr);

    ViewerToolBar* toolBar() const { return m_toolBar; }

    /// Forwards the user's input from here on. The first call creates the view.
    void startViewing();

    /// Releases what the user holds down on the partner's machine and stops forwarding.
    void stopViewing();

    /// False when there is no view to show it.
    bool showFrame(std::shared_ptr<DecodedFrame> frame);
    void clearPicture();

Q_SIGNALS:
    void inputEvent(corvane::InputEvent event);

private:
    void createView();

    QVBoxLayout* m_layout = nullptr;
    ViewerToolBar* m_toolBar = nullptr;
    QWidget* m_screen = nullptr;           ///< the view, or what stands in for it
    RemoteDesktopWidget* m_view = nullptr; ///< null before the first session, and without OpenGL
};

} // namespace corvane
