#pragma once

#include "AuthController.h"
#include "HeartbeatService.h"
#include "ISystemIntegration.h"
#include "MainWindow.h"
#include "ScratchSettings.h"
#include "SessionTest.h"
#include "SettingsController.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace corvane::test {

/// The whole program in front of a server of its own, with a synthetic machine underneath, and
/// means to look at the window and to use it like a person.
class WindowFixture : public SessionTest {
protected:
    WindowFixture();

    /// Shows the window and waits until the device is online.
    void start();

    /// Types the partner's ID and the password and clicks Connect.
    void connectTo(const QString& partner, const QString& password);

    /// `connectTo` a new device; null when the picture does not come up.
    std::unique_ptr<Device> viewNewDevice();

    /// A push from the server.
    void push(const QJsonObject& message);

    template <typename Widget>
    Widget* widget(const char* objectName) const {
        return m_window.findChild<Widget*>(QLatin1String(objectName));
    }
    QString label(const char* objectName) const { return widget<QLabel>(objectName)->text(); }
    void click(const char* objectName) const {
        QTest::mouseClick(widget<QPushButton>(objectName), Qt::LeftButton);
    }

    /// "text|colour" of the status line, without its dot.
    QString status() const;

    /// The message boxes on the screen.
    QList<QMessageBox*> boxes() const;

    /// "title|text" of the boxes on the screen, closing them.
    QStringList takeBoxes() const;

    bool isViewing() const;
    bool is(SessionState state) const { return m_session.state() == state; }

    const ScratchSettings m_ownSettings;
    SettingsController m_settings;
    ApiClient m_api;
    SignalingClient m_signaling;
    HeartbeatService m_heartbeat{&m_api};
    AuthController m_auth{&m_api, &m_signaling, &m_heartbeat, &m_settings};
    std::shared_ptr<Machine> m_machine = std::make_shared<Machine>();
    SessionManager m_session{&m_api, &m_signaling, createTestPlatform(m_machine)};
    bool m_isTrayThere = false;
    std::unique_ptr<ISystemIntegration> m_integration = createSystemIntegration();
    MainWindow m_window{&m_auth,
                        &m_api,
                        &m_signaling,
                        &m_session,
                        &m_settings,
                        {.integration = m_integration.get(),
                         .monitors = [] { return std::vector<MonitorInfo>(); },
                         .isTrayThere =
                             [this] {
                                 return m_isTrayThere;
                             }}};
};

} // namespace corvane::test
