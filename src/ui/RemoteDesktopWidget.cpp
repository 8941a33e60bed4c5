#include "ui/RemoteDesktopWidget.h"

#include "common/MonotonicClock.h"
#include "input/NativeKey.h"
#include "ui/FitRectangle.h"
#include "ui/Nv12Renderer.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QWheelEvent>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace corvane {

namespace {

MouseButton wireButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::RightButton:
        return MouseButton::Right;
    case Qt::MiddleButton:
        return MouseButton::Middle;
    case Qt::BackButton:
        return MouseButton::Back;
    case Qt::ForwardButton:
        return MouseButton::Forward;
    default:
        return MouseButton::Left;
    }
}

quint64 keyIdentity(const InputEvent& event) {
    return static_cast<quint64>(event.scanCode) << 32 | event.keyCode;
}

} // namespace

RemoteDesktopWidget::RemoteDesktopWidget(QWidget* parent) : QOpenGLWidget(parent) {
    setObjectName(QStringLiteral("remoteDesktop"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    spdlog::debug("RemoteDesktopWidget created");
}

RemoteDesktopWidget::~RemoteDesktopWidget() {
    // The base class destroys the context later, when there is no renderer left to release.
    if (context() != nullptr) {
        disconnect(context(), nullptr, this, nullptr);
    }
    releaseRenderer();
    spdlog::debug("RemoteDesktopWidget destroyed");
}

void RemoteDesktopWidget::setScaleMode(ScaleMode mode) {
    m_scaleMode = mode;
    update();
}

void RemoteDesktopWidget::setViewingMode(bool enabled) {
    if (!enabled) {
        releaseHeldInput();
    }
    m_viewing = enabled;
    spdlog::info("RemoteDesktopWidget viewing mode {}", enabled ? "enabled" : "disabled");
}

void RemoteDesktopWidget::clearPicture() {
    {
        const std::lock_guard lock(m_pendingMutex);
        m_pendingFrame.reset();
    }
    if (m_renderer) {
        makeCurrent();
        m_renderer->forgetPicture();
        doneCurrent();
    }
    update();
}

void RemoteDesktopWidget::updateFrame(std::shared_ptr<DecodedFrame> frame) {
    if (!frame) {
        return;
    }
    {
        const std::lock_guard lock(m_pendingMutex);
        m_pendingFrame = std::move(frame);
    }
    QMetaObject::invokeMethod(this, qOverload<>(&QWidget::update), Qt::AutoConnection);
}

void RemoteDesktopWidget::initializeGL() {
    // The context, and everything in it, is replaced when the widget moves to another window.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this,
            &RemoteDesktopWidget::releaseRenderer);
    m_renderer = std::make_unique<Nv12Renderer>();
    if (m_renderer->initialize()) {
        spdlog::info("RemoteDesktopWidget GL initialisation complete");
    } else {
        m_renderer.reset();
    }
}

void RemoteDesktopWidget::paintGL() {
    if (!m_renderer) {
        return;
    }
    m_renderer->clear(deviceSize());
    std::shared_ptr<DecodedFrame> frame;
    {
        const std::lock_guard lock(m_pendingMutex);
        frame = std::move(m_pendingFrame);
    }
    if (frame) {
        m_renderer->upload(*frame);
    }
    m_renderer->draw(viewport());
}

void RemoteDesktopWidget::resizeGL(int width, int height) {
    spdlog::debug("RemoteDesktopWidget resized to {}x{}", width, height);
}

QSize RemoteDesktopWidget::deviceSize() const {
    return size() * devicePixelRatio();
}

QRect RemoteDesktopWidget::pictureRectangle() const {
    return fitRectangle(m_renderer ? m_renderer->pictureSize() : QSize(), deviceSize());
}

QRect RemoteDesktopWidget::viewport() const {
    switch (m_scaleMode) {
    case ScaleMode::Stretch:
        return {QPoint(0, 0), deviceSize()};
    case ScaleMode::Original:
        return {QPoint(0, 0), m_renderer->pictureSize()};
    case ScaleMode::Fit:
        break;
    }
    QRect rectangle = pictureRectangle();
    rectangle.moveTop(deviceSize().height() - rectangle.y() - rectangle.height());
    return rectangle;
}

void RemoteDesktopWidget::releaseRenderer() {
    if (m_renderer) {
        makeCurrent();
        m_renderer.reset();
        doneCurrent();
    }
}

void RemoteDesktopWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!m_viewing) {
        QOpenGLWidget::mouseMoveEvent(event);
        return;
    }
    forwardMouse(InputEventType::MouseMove, event->position(), MouseButton::Left, 0);
}

void RemoteDesktopWidget::mousePressEvent(QMouseEvent* event) {
    if (!m_viewing) {
        QOpenGLWidget::mousePressEvent(event);
        return;
    }
    forwardButton(InputEventType::MouseButtonPress, *event);
}

void RemoteDesktopWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    // This is the second press of a double click; the partner's system counts clicks itself.
    mousePressEvent(event);
}

void RemoteDesktopWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_viewing) {
        QOpenGLWidget::mouseReleaseEvent(event);
        return;
    }
    forwardButton(InputEventType::MouseButtonRelease, *event);
}

void RemoteDesktopWidget::wheelEvent(QWheelEvent* event) {
    if (!m_viewing) {
        QOpenGLWidget::wheelEvent(event);
        return;
    }
    if (const int delta = event->angleDelta().y(); delta != 0) {
        forwardMouse(InputEventType::MouseWheel, event->position(), MouseButton::Left, delta);
    }
}

void RemoteDesktopWidget::keyPressEvent(QKeyEvent* event) {
    if (!m_viewing) {
        QOpenGLWidget::keyPressEvent(event);
        return;
    }
    forwardKey(InputEventType::KeyPress, *event);
    event->setAccepted(!event->isAutoRepeat());
}

void RemoteDesktopWidget::keyReleaseEvent(QKeyEvent* event) {
    if (!m_viewing) {
        QOpenGLWidget::keyReleaseEvent(event);
        return;
    }
    forwardKey(InputEventType::KeyRelease, *event);
    event->setAccepted(!event->isAutoRepeat());
}

void RemoteDesktopWidget::focusOutEvent(QFocusEvent* event) {
    // The release events of what is held down will go to another window.
    releaseHeldInput();
    QOpenGLWidget::focusOutEvent(event);
}

bool RemoteDesktopWidget::focusNextPrevChild(bool next) {
    return !m_viewing && QOpenGLWidget::focusNextPrevChild(next);
}

bool RemoteDesktopWidget::forwardMouse(InputEventType type, QPointF position, MouseButton button,
                                       int wheelDelta) {
    const auto fraction = fractionWithin(pictureRectangle(), position * devicePixelRatio());
    if (fraction) {
        emitMouse(type, *fraction, button, wheelDelta);
    }
    return fraction.has_value();
}

void RemoteDesktopWidget::forwardButton(InputEventType type, const QMouseEvent& event) {
    const MouseButton button = wireButton(event.button());
    const bool forwarded = forwardMouse(type, event.position(), button, 0);
    if (type == InputEventType::MouseButtonPress) {
        if (forwarded) {
            m_heldButtons.insert(button);
        }
    } else if (m_heldButtons.remove(button) && !forwarded) {
        // A drag that ends outside the picture must not leave the partner's button down.
        emitMouse(type, m_lastFraction, button, 0);
    }
}

void RemoteDesktopWidget::emitMouse(InputEventType type, QPointF fraction, MouseButton button,
                                    int wheelDelta) {
    using Limits = std::numeric_limits<int16_t>;
    m_lastFraction = fraction;
    InputEvent event;
    event.type = type;
    event.timestampMs = monotonicMilliseconds();
    event.x = fraction.x();
    event.y = fraction.y();
    event.button = button;
    event.wheelDelta =
        static_cast<int16_t>(std::clamp<int>(wheelDelta, Limits::min(), Limits::max()));
    Q_EMIT inputEvent(event);
}

void RemoteDesktopWidget::forwardKey(InputEventType type, const QKeyEvent& event) {
    if (event.isAutoRepeat()) {
        return;
    }
    const NativeKey key = wireKeyFromNative(event.nativeVirtualKey(), event.nativeScanCode());
    InputEvent record;
    record.type = type;
    record.timestampMs = monotonicMilliseconds();
    record.keyCode = key.virtualKey;
    record.scanCode = key.scanCode;
    record.extended = (key.scanCode & 0xE000U) != 0;
    if (type == InputEventType::KeyPress) {
        m_heldKeys.insert(keyIdentity(record), record);
    } else {
        m_heldKeys.remove(keyIdentity(record));
    }
    Q_EMIT inputEvent(record);
}

void RemoteDesktopWidget::releaseHeldInput() {
    for (const MouseButton button : std::exchange(m_heldButtons, {})) {
        emitMouse(InputEventType::MouseButtonRelease, m_lastFraction, button, 0);
    }
    for (InputEvent event : std::exchange(m_heldKeys, {})) {
        event.type = InputEventType::KeyRelease;
        event.timestampMs = monotonicMilliseconds();
        Q_EMIT inputEvent(event);
    }
}

} // namespace corvane
