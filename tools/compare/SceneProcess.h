#pragma once

#include <QProcess>
#include <QString>

namespace corvane::compare {

/// The scene on a shared display; see Scene.
class SceneProcess {
public:
    explicit SceneProcess(const QString& display);
    ~SceneProcess();

    /// Begins "still", "clock", "type", "scroll", "drag" or "terminal". False when it did not.
    bool begin(const QString& work);

private:
    QProcess m_process;
};

} // namespace corvane::compare
