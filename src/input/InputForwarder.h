#pragma once

#include "input/IInputBackend.h"
#include "input/InputEvent.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace corvane {

/// Hands received events to the input backend and thins out pointer moves: of a burst the first
/// goes at once, after that the latest one per window, and the last is never lost. Other events go
/// at once, ahead of a move that waits; they carry their own position.
///
/// Main thread only.
class InputForwarder : public QObject {
    Q_OBJECT

public:
    /// Takes the backend over; it must have been initialised. It may be null, then events are
    /// dropped with a warning.
    explicit InputForwarder(std::unique_ptr<IInputBackend> backend, QObject* parent = nullptr);

    /// Injects a move that still waits, then destroys the backend.
    ~InputForwarder() override;

public Q_SLOTS:
    void processEvent(const corvane::InputEvent& event);
    void flushPendingMouseMove();

private:
    std::unique_ptr<IInputBackend> m_backend;
    QTimer m_coalescingTimer;
    InputEvent m_pendingMove;
    bool m_hasPendingMove = false;
    int32_t m_maxMouseRate = 60; ///< moves per second
};

} // namespace corvane
