#include "WindowFixture.h"
#include "common/PartnerId.h"
#include "ui/RemoteDesktopWidget.h"

#include <QScreen>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;
using test::eventually;

class WindowFollowsSessionTest : public test::WindowFixture {
protected:
    void SetUp() override { start(); }

    void request(const QString& session, const QString& purpose) {
        const nlohmann::json message{{"type", "SESSION_HANDSHAKE_REQUEST"},
                                     {"session_id", session.toStdString()},
                                     {"master_client_id", "123456789"},
                                     {"purpose", purpose.toStdString()}};
        m_server.pushText(m_api.clientId(), QString::fromStdString(message.dump()));
    }

    void expectHome() const {
        EXPECT_FALSE(isViewing());
        EXPECT_EQ(m_window.windowTitle(), u"Corvane - Remote Access"_s);
        EXPECT_EQ(m_window.minimumSize(), QSize(420, 0));
        EXPECT_EQ(m_window.width(), 420);
        EXPECT_EQ(status(), u"Online (Ready)|#007700"_s);
        EXPECT_TRUE(widget<QPushButton>("primaryButton")->isEnabled());
    }
};

TEST_F(WindowFollowsSessionTest, FollowsAViewersSession) {
    QStringList history;
    QObject::connect(&m_session, &SessionManager::stateChanged, [&] { history << status(); });
    QStringList titles;
    QObject::connect(&m_window, &QWidget::windowTitleChanged,
                     [&](const QString& title) { titles << title; });
    const auto partner = viewNewDevice();
    ASSERT_NE(partner, nullptr);
    EXPECT_EQ(titles.value(0), u"Corvane - Connected to "_s + formatPartnerId(partner->id));
    EXPECT_EQ(m_window.minimumSize(), QSize(800, 600));
    EXPECT_EQ(m_window.size(), QSize(960, 600)); // of a screen of 1280x720
    EXPECT_EQ(m_settings.recentPartners(), QStringList(partner->id));

    auto* const view = widget<RemoteDesktopWidget>("remoteDesktop");
    EXPECT_EQ(m_window.focusWidget(), view);
    EXPECT_GT(view->height(), 500); // all that the tool bar leaves
    QTest::mouseClick(view, Qt::LeftButton, {}, view->rect().center());
    QTest::keyPress(view, Qt::Key_Control);
    EXPECT_TRUE(eventually([&] { return partner->machine->injected.size() == 3; }));
    bool released = false; // while it could still be sent
    QObject::connect(view, &RemoteDesktopWidget::inputEvent, [&](const InputEvent& event) {
        released = event.type == InputEventType::KeyRelease && is(SessionState::Connected);
    });

    click("viewerDisconnectButton");
    EXPECT_EQ(history,
              (QStringList{u"Initiating session...|#0077cc"_s, u"Exchanging keys...|#0077cc"_s,
                           u"Establishing transport...|#0077cc"_s, u"Connected|#007700"_s,
                           u"Disconnecting...|#cc7700"_s, u"Online (Ready)|#007700"_s}));
    expectHome();
    EXPECT_TRUE(eventually([&] { return partner->is(SessionState::Idle); }));
    EXPECT_TRUE(released);
    EXPECT_TRUE(eventually([this] { return closeReasons() == QStringList(u"user_disconnect"_s); }));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(WindowFollowsSessionTest, ReleasesWhatIsHeldWhenANewcomerEndsTheSession) {
    const auto partner = viewNewDevice();
    ASSERT_NE(partner, nullptr);
    QTest::keyPress(widget<RemoteDesktopWidget>("remoteDesktop"), Qt::Key_Control);
    EXPECT_TRUE(eventually([&] { return partner->machine->injected.size() == 1; }));
    m_session.acceptSession(u"another"_s, u"123456789"_s, QString());
    EXPECT_TRUE(eventually([&] { return partner->machine->injected.size() == 2; }));
    EXPECT_EQ(partner->machine->injected.back().type, InputEventType::KeyRelease);
}

TEST_F(WindowFollowsSessionTest, EndsTheSessionInsteadOfClosing) {
    // A server that no longer knows the session is nobody's concern.
    m_server.misbehaviour().setReply(u"/close"_s, {.status = 500});
    const auto partner = viewNewDevice();
    ASSERT_NE(partner, nullptr);
    EXPECT_FALSE(m_window.close());
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_TRUE(is(SessionState::Idle));
    expectHome();
    EXPECT_TRUE(eventually([this] { return m_log.contains("API error on"); }));
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(closeReasons(), QStringList(u"user_closed_window"_s));
    EXPECT_TRUE(m_window.close());
    EXPECT_FALSE(m_window.isVisible());
}

TEST_F(WindowFollowsSessionTest, AsksBeforeASessionWithoutPassword) {
    const QString odd = u"help <b>now</b> %1"_s;
    for (const auto answer : {QMessageBox::NoButton, QMessageBox::No, QMessageBox::Yes}) {
        const bool byKey = answer == QMessageBox::NoButton;
        m_window.hide();
        request(u"s1"_s, byKey ? odd : QString());
        ASSERT_TRUE(eventually([this] { return boxes().size() == 1; }));
        EXPECT_TRUE(m_window.isVisible());
        QMessageBox* const box = boxes().first();
        EXPECT_EQ(box->windowTitle(), u"Incoming Connection"_s);
        EXPECT_EQ(box->text(), u"Client 123 456 789 wants to connect.\nPurpose: "_s +
                                   (byKey ? odd : u"remote access"_s) + u"\n\nAccept?"_s);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        m_log.clear();
        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        if (byKey) {
            QTest::keyClick(box, Qt::Key_Escape);
        } else {
            QTest::mouseClick(box->button(answer), Qt::LeftButton);
        }
        const bool yes = answer == QMessageBox::Yes;
        EXPECT_TRUE(boxes().isEmpty());
        EXPECT_EQ(is(SessionState::Handshaking), yes);
        EXPECT_TRUE(m_log.contains(yes ? "info|Accepted session s1 from 123456789"
                                       : "info|Rejected session s1 from 123456789"));
    }
    EXPECT_EQ(m_session.role(), SessionRole::Target);
    EXPECT_TRUE(closeReasons().isEmpty());
}

TEST_F(WindowFollowsSessionTest, KeepsAFloodOfRequestsToOneQuestionOnTheScreen) {
    for (int i = 0; i < 200; ++i) {
        request(QString::number(i), QString(100, u'\n'));
    }
    ASSERT_TRUE(eventually([this] { return m_log.contains("Rejected session 198"); }));
    EXPECT_TRUE(eventually([this] { return m_window.findChildren<QMessageBox*>().size() == 1; }));
    EXPECT_LT(boxes().first()->height(), m_window.screen()->size().height());
}

} // namespace
} // namespace corvane
