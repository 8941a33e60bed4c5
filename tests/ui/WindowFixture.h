#pragma once

#include "ScratchSettings.h"
#include "app/settings/SettingsController.h"
#include "integration/ISystemIntegration.h"
#include "network/identity/AuthController.h"
#include "network/reachability/HeartbeatService.h"
#include "session/SessionTest.h"
#include "ui/MainWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTest>

#include <memory>

namespace corvane::test {

using namespace Qt::StringLiterals;

/// The whole program in front of a server of its own, with a synthetic machine underneath, and
/// means to look at the window and to use it like a person.
class WindowFixture : public SessionTest {
protected:
    WindowFixture() {
        m_api.setServerUrl(m_server.url());
        m_auth.setSessionPassword(u"Password1"_s);
    }

    /// Shows the window and waits until the device is online.
    void start() {
        m_window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
        m_auth.start();
        ASSERT_TRUE(eventually([this] { return status().startsWith(u"Online"); }));
    }

    /// Types the partner's ID and the password and clicks Connect.
    void connectTo(const QString& partner, const QString& password) {
        for (const auto& [edit, text] :
             {std::pair{"partnerEdit", partner}, {"partnerPasswordEdit", password}}) {
            widget<QLineEdit>(edit)->clear();
            QTest::keyClicks(widget<QLineEdit>(edit), text);
        }
        click("primaryButton");
    }

    /// `connectTo` a new device; null when the picture does not come up.
    std::unique_ptr<Device> viewNewDevice() {
        auto partner = createDevice();
        connectTo(partner->id, u"Password1"_s);
        const bool connected = eventually([&] {
            return isViewing() && partner->is(SessionState::Connected) &&
                   m_log.contains("Created NV12 textures");
        });
        EXPECT_TRUE(connected);
        return connected ? std::move(partner) : nullptr;
    }

    template <typename Widget>
    Widget* widget(const char* objectName) const {
        return m_window.findChild<Widget*>(QLatin1String(objectName));
    }
    QString label(const char* objectName) const { return widget<QLabel>(objectName)->text(); }
    void click(const char* objectName) const {
        QTest::mouseClick(widget<QPushButton>(objectName), Qt::LeftButton);
    }

    /// "text|colour" of the status line, without its dot.
    QString status() const {
        static const QRegularExpression kColor(
            u"color: (#\\w+); font-size: 12px; padding-top: 4px;"_s);
        const auto* const line = widget<QLabel>("statusLabel");
        EXPECT_TRUE(line->text().startsWith(u"● "));
        return line->text().mid(2) + QLatin1Char('|') +
               kColor.match(line->styleSheet()).captured(1);
    }

    /// The message boxes on the screen.
    QList<QMessageBox*> boxes() const {
        auto boxes = m_window.findChildren<QMessageBox*>();
        boxes.removeIf([](const QMessageBox* box) { return !box->isVisible(); });
        return boxes;
    }

    /// "title|text" of the boxes on the screen, closing them.
    QStringList takeBoxes() const {
        QStringList texts;
        for (QMessageBox* const box : boxes()) {
            texts.append(box->windowTitle() + QLatin1Char('|') + box->text());
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            QTest::keyClick(box, Qt::Key_Escape);
        }
        return texts;
    }

    bool isViewing() const { return m_window.findChild<QStackedWidget*>()->currentIndex() == 1; }
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
    std::vector<MonitorInfo> m_monitors;
    std::unique_ptr<ISystemIntegration> m_integration = createSystemIntegration();
    MainWindow m_window{&m_auth,
                        &m_api,
                        &m_signaling,
                        &m_session,
                        &m_settings,
                        {.integration = m_integration.get(),
                         .monitors = [this] { return m_monitors; },
                         .isTrayThere =
                             [this] {
                                 return m_isTrayThere;
                             }}};
};

} // namespace corvane::test
