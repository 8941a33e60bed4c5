#pragma once

#include <QByteArray>
#include <QObject>

namespace corvane {

/// Keeps the clipboard text of the two machines of a session in step, without sending back what
/// came from the peer. Only plain text is shared. Main thread.
///
/// A message consists of the control channel's tag, the text's length in bytes (u32) and the text
/// in UTF-8: unlike other services, this one writes and checks the tag itself.
class ClipboardSharing : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~ClipboardSharing() override;

    /// Starts sending local changes.
    void start();

    /// Stops sending local changes. Received text is still applied; the caller decides whether to
    /// deliver it.
    void stop();

public Q_SLOTS:
    /// Puts the peer's text on the clipboard; a malformed message is logged and dropped.
    void onRemoteClipboardData(const QByteArray& data);

    void onLocalClipboardChanged();

Q_SIGNALS:
    /// One message to be sent as it is.
    void clipboardDataReady(QByteArray data);

private:
    bool m_active = false;
    /// Set just before this object writes the clipboard; the change that follows is its own.
    bool m_ignoreNextChange = false;
};

} // namespace corvane
