#include "app/Wiring.h"
#include "network/CannedServer.h"
#include "network/updates/UpdateService.h"
#include "ui/WindowFixture.h"

#include <QComboBox>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace corvane {
namespace {

using test::CannedServer;
using test::eventually;
using namespace Qt::StringLiterals;

class WiringTest : public test::WindowFixture {
protected:
    void choose(const char* combo, int index) const {
        widget<QComboBox>(combo)->setCurrentIndex(index);
    }
};

TEST(Defaults, AreWhatTheProgramRunsWith) {
    using namespace std::chrono_literals;
    EXPECT_EQ(AuthIntervals().retry, 20s);
    EXPECT_EQ(AuthIntervals().pairingCode, 5min);
    EXPECT_EQ(UpdateOptions().manifestUrl.path(), u"/download/CorvaneSetup.json"_s);
    EXPECT_EQ(UpdateOptions().folder, QDir::tempPath());
    EXPECT_EQ(UpdateOptions().unpackTimeout, 30s);
}

TEST_F(WiringTest, AnUpdateIsFoundOfferedFetchedAndStarted) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath(u"started"_s);
    const QByteArray installer =
        "#!/bin/sh\ntouch '" + mark.toUtf8() + "'\n" + QByteArray(1024, '#') + '\n';
    const CannedServer archive("HTTP/1.1 200 OK\r\n\r\n" + installer);
    const CannedServer manifest("HTTP/1.1 200 OK\r\n\r\n{\"version\":\"99\",\"download_url\":\"" +
                                archive.url().toString().toUtf8() + "\"}");
    UpdateService updates(
        nullptr, {.manifestUrl = manifest.url(),
                  .folder = folder.path(),
                  .unpackCommand = [](const QString& from, const QString& into) -> Command {
                      return {u"install"_s, {from, into + u"/CorvaneSetup.exe"_s}};
                  }});
    connectUpdates(m_auth, m_window, updates);
    QSignalSpy quit(&m_window, &MainWindow::quitRequested);
    EXPECT_EQ(manifest.received(), "") << "before the device is known";

    start();
    ASSERT_TRUE(eventually([this] { return widget<QWidget>("updateBanner")->isVisible(); }));
    EXPECT_EQ(label("updateText"), u"Update available: v99"_s);
    EXPECT_EQ(archive.received(), "") << "unasked";
    QTest::mouseClick(widget<QWidget>("updateBanner")->findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_TRUE(eventually([&] { return quit.size() == 1 && QFile::exists(mark); }));
    EXPECT_EQ(takeBoxes(), QStringList());
}

TEST_F(WiringTest, WhatIsChosenInTheSettingsReachesTheCapture) {
    m_monitors = {{.index = 0, .name = "left"}, {.index = 1, .name = "right"}};
    connectSettings(m_window, m_session, m_settings);
    start();
    const auto viewer = createDevice();
    const auto share = [&] {
        m_log.clear();
        viewer->session->initiateSession(m_settings.clientId(), u"Password1"_s);
        return eventually([&] { return viewer->picture != nullptr; });
    };
    ASSERT_TRUE(share());
    EXPECT_EQ(m_machine->monitor, 0);
    EXPECT_TRUE(m_log.contains("@ 10 fps, CQ 45,"));
    viewer->session->endSession(u"done"_s);
    ASSERT_TRUE(eventually([this] { return is(SessionState::Idle); }));
    viewer->picture.reset();

    click("settingsButton");
    choose("displayModeCombo", 0);
    choose("monitorCombo", 1);
    click("okButton");
    ASSERT_TRUE(eventually([this] { return widget<QComboBox>("monitorCombo") == nullptr; }));
    ASSERT_TRUE(share());
    EXPECT_EQ(m_machine->monitor, 1);
    EXPECT_TRUE(m_log.contains("@ 24 fps, CQ 23,"));
    viewer->session->endSession(u"done"_s);
    EXPECT_TRUE(eventually([this] { return is(SessionState::Idle); }));
}

} // namespace
} // namespace corvane
