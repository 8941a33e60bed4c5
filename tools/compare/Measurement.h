#pragma once

#include "compare/ISystem.h"
#include "compare/Probe.h"
#include "compare/ResultTable.h"
#include "compare/SceneProcess.h"
#include "netns/NetworkPlace.h"

#include <QString>

namespace corvane::compare {

/// Measures a system that has been started, into one column of a table.
class Measurement {
public:
    struct Target {
        ISystem& system;
        const test::NetworkPlace& sharedPlace;
        ResultTable& table;
        QString column;
        int presses = 30;
    };

    explicit Measurement(const Target& target);

    /// False when the viewer does not show the scene.
    bool isReady();

    /// On a line without limits: a key press, on a still screen and while a window is dragged.
    void latency();

    /// Fourteen seconds of typing, scrolling, dragging and terminal output.
    void work();

    /// Ten seconds in which nothing happens.
    void idle();

    /// On a slow line, named in the rows.
    void slowLine(const QString& line);

    /// On a slow line: a key press without an upload and during one.
    void upload(const QString& line);

private:
    void keys(const QString& row);
    QRect keyBlock();
    QRect clock();

    Target m_target;
    SceneProcess m_scene;
    Probe m_probe;
};

} // namespace corvane::compare
