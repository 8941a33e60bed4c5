#pragma once

#include "input/IInputBackend.h"
#include "input/InputEvent.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace corvane {

/// Passes received events to the input backend and thins out pointer moves: the first of a burst is
/// injected at once and starts an interval, at whose end the latest one that has arrived since is
/// injected, so the last is never lost. Other events are injected at once, ahead of a waiting move;
/// they carry their own position.
///
/// Main thread only.
class InputForwarder : public QObject {
    Q_OBJECT

public:
    /// Takes ownership of the backend, which must have been initialised. It may be null; events are
    /// then dropped with a warning.
    explicit InputForwarder(std::unique_ptr<IInputBackend> backend, QObject* parent = nullptr);

    /// Injects a move that is still waiting, then destroys the backend.
    ~InputForwarder() override;

public Q_SLOTS:
    void processEvent(const corvane::InputEvent& event);
    void flushPendingMouseMove();

private:
    std::unique_ptr<IInputBackend> m_backend;
    QTimer m_coalescingTimer;
    InputEvent m_pendingMove;
    bool m_hasPendingMove = false;
    int32_t m_maxMouseRate = 60; ///< intervals per second
};

} // namespace corvane
