#pragma once

#include <QRect>
#include <QString>

namespace corvane::compare {

/// A remote desktop under measurement: a shared machine and a viewer of it, each on a display of
/// its own and at its own end of a network. Everything ends with the object.
class ISystem {
public:
    virtual ~ISystem() = default;

    /// Returns once the viewer shows the shared screen and has the keyboard. On failure, returns
    /// false and sets `error()`.
    virtual bool start() = 0;
    virtual QString error() const = 0;

    virtual QString sharedDisplay() const = 0;
    virtual QString viewerDisplay() const = 0;

    /// Where the viewer's display shows an area of the shared screen.
    virtual QRect onViewer(const QRect& area) = 0;

    virtual qint64 sharingProcess() const = 0;
    virtual qint64 viewingProcess() const = 0;

    /// Begins to send a file of that size to the shared machine. False when the system cannot.
    virtual bool startUpload(qint64 bytes) = 0;
};

} // namespace corvane::compare
