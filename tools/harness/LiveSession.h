#pragma once

#include "devserver/DevServer.h"
#include "harness/ClientProcess.h"
#include "harness/WaitFor.h"
#include "harness/XDisplay.h"
#include "xvfb/XvfbServer.h"

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QSize>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace corvane::harness {

/// What the viewer received of the shared screen over a period.
struct StreamFigures {
    double framesPerSecond = 0.0;
    double kilobitsPerSecond = 0.0;
};

/// Two users and a server on one machine: a shared machine showing the demo desktop on a display of
/// its own, and a viewer, both running the real program and driven through their displays.
/// Everything it starts ends with it.
class LiveSession {
public:
    struct Options {
        QString viewerDisplay; ///< empty: a separate virtual display
        bool stillDesktop = false;
        bool showsDesktop = true; ///< false: what the shared screen shows is up to the caller
        QSize screen{1280, 720};  ///< of the virtual displays
        std::optional<int> displayMode{};
        /// What the clients' processes begin with; see ClientProcess::beginWith. May be empty.
        std::function<void()> targetPlace{};
        std::function<void()> viewerPlace{};
        Platform target = Platform::Linux;
        Platform viewer = Platform::Linux;
    };

    explicit LiveSession(Options options);
    ~LiveSession();

    /// Ends everything, at any time.
    void end();

    /// Starts everything and waits until both devices are online. On failure, returns false and
    /// sets `error()`.
    bool start();

    /// Types the shared machine's ID and a password into the viewer's window and presses Return.
    bool enterPartner(const QString& password);

    /// Waits until both sides are connected and the first picture has arrived.
    bool waitUntilConnected();

    /// `enterPartner` with the right password, then `waitUntilConnected`.
    bool connectToTarget() { return enterPartner(m_targetPassword) && waitUntilConnected(); }

    /// Clicks into the remote text field and types through the viewer. True once the shared machine
    /// shows all of it.
    bool typeRemotely(const QString& word);

    /// The time from a key press on the viewer's display to the letter in the viewer's picture.
    std::optional<std::chrono::milliseconds> inputRoundTrip();

    /// Takes at least a few seconds: the viewer counts once a second.
    StreamFigures measureStream(std::chrono::milliseconds duration);

    /// Starts or stops the movement on the shared desktop.
    void setDesktopRunning(bool running);

    /// How closely the viewer's picture eventually matches the shared screen, in dB. Meaningful
    /// only while the desktop stands still.
    double pictureFidelity();

    /// Where the viewer's display shows an area of the shared screen.
    QRect onViewer(const QRect& targetArea);

    /// The remote picture as shown on the viewer's display.
    QImage viewerPicture();

    QImage targetScreen() const { return m_targetDisplay->grab(); }
    QImage viewerScreen() const { return m_viewerDisplay->grab(); }

    /// "p2p" or "relay", whichever carries the viewer's session.
    QString transport() const;

    /// "Idle -> Initiating -> …" as logged by a client.
    static QString stateChanges(const ClientProcess& client);

    ClientProcess& target() { return *m_target; }
    ClientProcess& viewer() { return *m_viewer; }
    XDisplay& targetDisplay() { return *m_targetDisplay; }
    XDisplay& viewerDisplay() { return *m_viewerDisplay; }
    devserver::DevServer& server() { return m_server; }
    QString targetPassword() const { return m_targetPassword; }
    QString error() const { return m_error; }

private:
    bool startServer();
    bool startUsers();
    bool startDesktop();
    bool startClients();
    bool fail(const QString& error);
    void readDesktop();
    std::optional<QRect> pictureRectangle();

    const Options m_options;
    QString m_error;
    QString m_targetPassword;
    devserver::DevServer m_server;
    std::unique_ptr<test::XvfbServer> m_targetScreenServer;
    std::unique_ptr<test::XvfbServer> m_viewerScreenServer;
    std::unique_ptr<XDisplay> m_targetDisplay;
    std::unique_ptr<XDisplay> m_viewerDisplay;
    QProcess m_desktop;
    QRect m_field; ///< the demo desktop's text field, in pixels of the shared screen
    QRect m_echo;  ///< where it repeats the typed text, in the same pixels
    QString m_typed;
    bool m_fieldHasFocus = false;
    std::unique_ptr<ClientProcess> m_target;
    std::unique_ptr<ClientProcess> m_viewer;
};

} // namespace corvane::harness
