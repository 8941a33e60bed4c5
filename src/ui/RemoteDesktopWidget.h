#pragma once

#include "input/InputEvent.h"
#include "media/DecodedFrame.h"

#include <QHash>
#include <QOpenGLWidget>
#include <QPointF>
#include <QRect>
#include <QSet>

#include <memory>
#include <mutex>

namespace corvane {

class Nv12Renderer;

enum class ScaleMode {
    Fit = 0,      ///< keep the aspect ratio, centred
    Stretch = 1,  ///< fill the widget
    Original = 2, ///< one texel per pixel, at the bottom left
};

/// Draws the partner's screen and turns the user's mouse, wheel and keyboard into input events.
class RemoteDesktopWidget : public QOpenGLWidget {
    Q_OBJECT

public:
    explicit RemoteDesktopWidget(QWidget* parent = nullptr);
    ~RemoteDesktopWidget() override;

    void setScaleMode(ScaleMode mode);

    /// While off, nothing is forwarded. Switching off releases what the user still holds down.
    void setViewingMode(bool enabled);

    /// Drops the picture and shows black until the next frame.
    void clearPicture();

public Q_SLOTS:
    /// Makes this the next picture to paint; an earlier one not yet painted is dropped. May be
    /// called from any thread; the repaint is scheduled on the main thread.
    void updateFrame(std::shared_ptr<corvane::DecodedFrame> frame);

Q_SIGNALS:
    void inputEvent(corvane::InputEvent event);

protected:
    void initializeGL() override;
    void paintGL() override;
    void resizeGL(int width, int height) override;

    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QSize deviceSize() const;
    QRect pictureRectangle() const;
    QRect viewport() const;
    void releaseRenderer();
    bool forwardMouse(InputEventType type, QPointF position, MouseButton button, int wheelDelta);
    void forwardButton(InputEventType type, const QMouseEvent& event);
    void emitMouse(InputEventType type, QPointF fraction, MouseButton button, int wheelDelta);
    void forwardKey(InputEventType type, const QKeyEvent& event);
    void releaseHeldInput();

    std::unique_ptr<Nv12Renderer> m_renderer;
    std::mutex m_pendingMutex;
    std::shared_ptr<DecodedFrame> m_pendingFrame;
    ScaleMode m_scaleMode = ScaleMode::Fit;
    bool m_viewing = false;
    /// Key presses forwarded and not yet released, by scan code and virtual key.
    QHash<quint64, InputEvent> m_heldKeys;
    QSet<MouseButton> m_heldButtons;
    QPointF m_lastFraction; ///< the pointer's last position inside the picture
};

} // namespace corvane
