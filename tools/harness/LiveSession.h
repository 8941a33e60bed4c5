#pragma once

#include "devserver/DevServer.h"
#include "harness/ClientProcess.h"
#include "harness/WaitFor.h"
#include "harness/XDisplay.h"
#include "xvfb/XvfbServer.h"

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace corvane::harness {

/// What arrived of the target's screen at the viewer over a while.
struct StreamFigures {
    double framesPerSecond = 0.0;
    double kilobitsPerSecond = 0.0;
};

/// Two users and a server on one machine: a target that shares the demo desktop on a display of its
/// own, and a viewer, both the real program, driven through their displays. Everything it starts
/// ends with it.
class LiveSession {
public:
    struct Options {
        QString viewerDisplay; ///< empty: a virtual display of its own
        bool stillDesktop = false;
        Platform target = Platform::Linux;
        Platform viewer = Platform::Linux;
    };

    explicit LiveSession(Options options);
    ~LiveSession();

    /// Ends everything, at any time.
    void end();

    /// Starts everything and waits until both devices are online. False with `error()`.
    bool start();

    /// Types the target's ID and a password into the viewer's main window and presses Return.
    bool enterPartner(const QString& password);

    /// Waits until both sides are connected and the first picture is there.
    bool waitUntilConnected();

    /// `enterPartner` with the right password, then `waitUntilConnected`.
    bool connectToTarget() { return enterPartner(m_targetPassword) && waitUntilConnected(); }

    /// Clicks into the remote text field and types through the viewer. True once the target shows
    /// all of it.
    bool typeRemotely(const QString& word);

    /// From a key press on the viewer's display to the letter in the viewer's picture.
    std::optional<std::chrono::milliseconds> inputRoundTrip();

    /// Takes a few seconds at least: the viewer counts by the second.
    StreamFigures measureStream(std::chrono::milliseconds duration);

    /// Starts or stops what moves on the target's desktop.
    void setDesktopRunning(bool running);

    /// How close the viewer's picture comes to the target's screen in time, in dB.
    /// Means something while the desktop stands still.
    double pictureFidelity();

    /// The remote picture as the viewer's display shows it.
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
    QRect onViewer(const QRect& targetArea);

    const Options m_options;
    QString m_error;
    QString m_targetPassword;
    devserver::DevServer m_server;
    std::unique_ptr<test::XvfbServer> m_targetScreenServer;
    std::unique_ptr<test::XvfbServer> m_viewerScreenServer;
    std::unique_ptr<XDisplay> m_targetDisplay;
    std::unique_ptr<XDisplay> m_viewerDisplay;
    QProcess m_desktop;
    QRect m_field; ///< the demo desktop's text field, target pixels
    QRect m_echo;  ///< what it shows of the typed text, target pixels
    QString m_typed;
    bool m_fieldHasFocus = false;
    std::unique_ptr<ClientProcess> m_target;
    std::unique_ptr<ClientProcess> m_viewer;
};

} // namespace corvane::harness
