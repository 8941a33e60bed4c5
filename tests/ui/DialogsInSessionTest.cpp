#include "WindowFixture.h"
#include "common/PartnerId.h"
#include "services/ChatService.h"
#include "services/FileTransferService.h"

#include <QDialog>
#include <QDir>
#include <QTextBrowser>
#include <QTreeWidget>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;
using test::eventually;

class DialogsInSessionTest : public test::WindowFixture {
protected:
    void SetUp() override { start(); }

    template <typename Dialog>
    Dialog* shown(const char* objectName) const {
        auto* const dialog = widget<Dialog>(objectName);
        return dialog != nullptr && dialog->isVisible() ? dialog : nullptr;
    }

    QString transcript() const { return widget<QTextBrowser>("chatTranscript")->toPlainText(); }

    void say(const QString& text) const {
        QTest::keyClicks(widget<QLineEdit>("chatInput"), text);
        QTest::keyClick(widget<QLineEdit>("chatInput"), Qt::Key_Return);
    }
};

TEST_F(DialogsInSessionTest, ChatsAsViewerWithoutTakingTheScreen) {
    const auto partner = viewNewDevice();
    ASSERT_NE(partner, nullptr);
    QStringList received;
    QObject::connect(partner->session->chatService(), &ChatService::messageReceived,
                     [&](const QString& text) { received << text; });
    const auto* const button = widget<QPushButton>("chatButton");
    EXPECT_EQ(button->text(), u"Chat"_s);
    partner->session->chatService()->sendMessage(u"<b>look</b>"_s);
    EXPECT_TRUE(eventually([&] { return button->text() == u"Chat (!)"; }));
    EXPECT_EQ(shown<QDialog>("chatDialog"), nullptr);

    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    QTest::keyClick(&m_window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_NE(shown<QDialog>("chatDialog"), nullptr);
    EXPECT_EQ(button->text(), u"Chat"_s);
    EXPECT_TRUE(transcript().contains(u"<b>look</b>"_s));
    say(u"seen"_s);
    EXPECT_TRUE(eventually([&] { return received == QStringList(u"seen"_s); }));
    EXPECT_TRUE(transcript().contains(u"Me"_s));

    click("viewerDisconnectButton");
    EXPECT_TRUE(eventually([&] { return widget<QDialog>("chatDialog") == nullptr; }));
}

TEST_F(DialogsInSessionTest, SharesTheScreenAndPutsTheChatBeforeIt) {
    const auto viewer = createDevice();
    ASSERT_TRUE(
        eventually([this] { return m_server.signalingMessages(m_api.clientId()).size() >= 2; }));
    for (const QString& text : {u"first session"_s, u"second session"_s}) {
        viewer->session->initiateSession(m_api.clientId(), u"Password1"_s);
        ASSERT_TRUE(eventually(
            [&] { return viewer->is(SessionState::Connected) && is(SessionState::Connected); }));
        viewer->session->chatService()->sendMessage(text);
        ASSERT_TRUE(eventually([&] { return shown<QDialog>("chatDialog") && viewer->picture; }));
        EXPECT_EQ(status(), u"Connected|#007700"_s);
        EXPECT_FALSE(isViewing());
        EXPECT_TRUE(boxes().isEmpty());
        EXPECT_TRUE(transcript().contains(text));
        EXPECT_EQ(transcript().count(u"session"_s), 1) << "a new session starts a new transcript";
        click("disconnectButton");
        ASSERT_TRUE(eventually(
            [&] { return viewer->is(SessionState::Idle) && !widget<QDialog>("chatDialog"); }));
        EXPECT_EQ(status(), u"Online (Ready)|#007700"_s);
    }
    EXPECT_TRUE(m_log.contains(" (password verified)"));
}

TEST_F(DialogsInSessionTest, ShowsQualityFilesAndInformation) {
    const auto* const swatch = widget<QWidget>("qualityIndicator");
    EXPECT_EQ(swatch->toolTip(), u"Connection: Good"_s);
    const auto partner = viewNewDevice();
    ASSERT_NE(partner, nullptr);
    m_window.onStatsUpdated({.fps = 29.9, .latencyMs = 400});
    EXPECT_EQ(m_window.windowTitle(), u"Corvane - %1 [29 FPS]"_s.arg(formatPartnerId(partner->id)));
    EXPECT_TRUE(swatch->toolTip().contains(u"(29 FPS, 400ms)"));
    EXPECT_TRUE(eventually([&] { return label("qualitySummaryLabel").startsWith(u"FPS: "_s); }));

    click("filesButton");
    ASSERT_NE(shown<QDialog>("fileManagerDialog"), nullptr);
    const auto* const remote = widget<QTreeWidget>("remoteTree");
    EXPECT_TRUE(eventually([&] { return remote->topLevelItemCount() > 0; })); // the volumes
    click("infoButton");
    ASSERT_NE(shown<QDialog>("connectionInfoDialog"), nullptr);
    EXPECT_EQ(label("sessionIdValue"), m_session.sessionId());
    EXPECT_EQ(label("transportValue"), u"RELAY"_s);

    // The session ends under the open dialogs, with a transfer under way.
    m_session.fileTransferService()->requestDownload(u"/nowhere"_s, QDir::tempPath());
    partner->session->endSession(u"test"_s);
    EXPECT_TRUE(eventually([&] { return is(SessionState::Idle); }));
    EXPECT_TRUE(eventually([&] { return m_window.findChildren<QDialog*>().isEmpty(); }));
    EXPECT_EQ(swatch->toolTip(), u"Connection: Good"_s);
    EXPECT_TRUE(label("qualitySummaryLabel").isEmpty());
}

} // namespace
} // namespace corvane
