#include "WindowFixture.h"
#include "common/PartnerId.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputDialog>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;
using test::eventually;

class IdentityAndConnectTest : public test::WindowFixture {};

TEST_F(IdentityAndConnectTest, ShowsTheIdentityOnceOnline) {
    EXPECT_EQ(label("clientIdLabel"), u"Connecting..."_s);
    EXPECT_EQ(label("passwordLabel"), u"------"_s);
    EXPECT_EQ(status(), u"Connecting...|#ffa726"_s);
    const auto* const connectButton = widget<QPushButton>("primaryButton");
    EXPECT_FALSE(connectButton->isEnabled());

    QStringList history;
    QObject::connect(&m_auth, &AuthController::authenticated, [&] { history << status(); });
    start();
    const QString id = m_api.clientId();
    EXPECT_EQ(history, QStringList(u"Ready|#007700"_s));
    EXPECT_EQ(status(), u"Online (Ready)|#007700"_s);
    EXPECT_TRUE(connectButton->isEnabled());
    const std::tuple<const char*, const char*, QString, QString> values[] = {
        {"clientIdLabel", "copyIdButton", formatPartnerId(id), id},
        {"passwordLabel", "copyPasswordButton", u"Password1"_s, u"Password1"_s},
        {"pairingCodeLabel", "copyPairingCodeButton", m_auth.pairingCode(), m_auth.pairingCode()}};
    for (const auto& [name, button, shown, copied] : values) {
        EXPECT_EQ(label(name), shown);
        click(button);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), copied);
    }

    m_server.dropSignaling(id);
    EXPECT_TRUE(eventually([this] { return status() == u"Reconnecting...|#cc7700"; }));
    Q_EMIT m_auth.authenticationFailed(u"gone"_s);
    EXPECT_EQ(status(), u"Server unavailable — retrying...|#cc7700"_s);
    Q_EMIT m_auth.loggedOut();
    EXPECT_EQ(status(), u"Disconnected|#cc0000"_s);
    EXPECT_EQ(label("clientIdLabel"), u"Not connected"_s);
    EXPECT_FALSE(connectButton->isEnabled());
}

TEST_F(IdentityAndConnectTest, RefusesIncompletePartners) {
    start();
    const QString refusals[][3] = {
        {u"  "_s, u"x"_s, u"Please enter a partner Client ID."_s},
        {u"12345678a"_s, u"x"_s, u"Partner ID must be exactly 9 digits."_s},
        {u"123 456 789"_s, u"  "_s, u"Please enter the partner's password."_s},
    };
    for (const auto& [partner, password, text] : refusals) {
        connectTo(partner, password);
        EXPECT_EQ(takeBoxes(), QStringList(u"Error|"_s + text));
    }
    EXPECT_TRUE(is(SessionState::Idle));
    EXPECT_TRUE(m_settings.recentPartners().isEmpty());
}

TEST_F(IdentityAndConnectTest, ExplainsWhyAPartnerCannotBeReached) {
    start();
    const QString offline = m_server.registerDevice().clientId;
    const auto online = createDevice();
    const QString unreachable = u"The partner is not available or offline."_s;
    const devserver::Reply odd{.status = 500, .body = R"({"detail": "<img src='x'>\n"})"};
    const std::tuple<QString, devserver::Reply, QString, QString> cases[] = {
        {u"999999999"_s, {}, u"Target client is not available"_s, unreachable},
        {offline, {}, u"Target client is offline"_s, unreachable},
        {online->id, {}, u"Invalid session password"_s, u"Invalid session password."_s},
        {online->id, odd, u"<img src='x'>\n"_s, u"Failed to connect. Please try again."_s},
    };
    for (const auto& [partner, reply, detail, text] : cases) {
        m_server.misbehaviour().clear();
        if (reply.status) {
            m_server.misbehaviour().setReply(u"/sessions/create"_s, reply);
        }
        connectTo(partner, u"Wrong0000"_s);
        EXPECT_FALSE(widget<QPushButton>("primaryButton")->isEnabled());
        ASSERT_TRUE(eventually([this] { return boxes().size() == 2; }));
        auto shown = takeBoxes();
        shown.sort();
        EXPECT_EQ(shown,
                  (QStringList{u"Connection Error|"_s + text, u"Session Error|"_s + detail}));
        EXPECT_EQ(status(), u"Online (Ready)|#007700"_s);
        EXPECT_TRUE(widget<QPushButton>("primaryButton")->isEnabled());
    }
    EXPECT_TRUE(m_log.contains("API error on /sessions/create: 403 (Invalid session password)"));
}

TEST_F(IdentityAndConnectTest, ShowsAnAcceptablePasswordLiterally) {
    start();
    const QString accepted = u"<b>Aa1</b>"_s + QString(200, u'W');
    for (const QString& typed : {u"Ab1"_s, accepted}) {
        click("changePasswordButton");
        auto* const dialog = m_window.findChild<QInputDialog*>();
        dialog->setTextValue(typed);
        QTest::keyClick(dialog, Qt::Key_Return);
        EXPECT_TRUE(eventually([&] { return m_window.findChild<QInputDialog*>() == nullptr; }));
        EXPECT_EQ(takeBoxes().size(), typed == accepted ? 0 : 1);
        EXPECT_EQ(label("passwordLabel"), typed == accepted ? accepted : u"Password1"_s);
    }
    EXPECT_EQ(widget<QLabel>("passwordLabel")->textFormat(), Qt::PlainText);
    const auto* const button = widget<QPushButton>("changePasswordButton");
    EXPECT_LE(button->mapTo(&m_window, QPoint(button->width(), 0)).x(), m_window.width());
}

} // namespace
} // namespace corvane
