#include "WindowFixture.h"
#include "common/PartnerId.h"
#include "ui/SystemTrayIcon.h"

#include <QInputDialog>
#include <QListWidget>
#include <QMenu>

#include <algorithm>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;
using test::eventually;

class HomePageAndTrayTest : public test::WindowFixture {
protected:
    void SetUp() override { start(); }

    QString partner() const { return widget<QLineEdit>("partnerEdit")->text(); }
    void typePartner(const QString& text) const {
        widget<QLineEdit>("partnerEdit")->clear();
        QTest::keyClicks(widget<QLineEdit>("partnerEdit"), text);
    }

    QAction* trayAction(const QString& text) const {
        const auto actions = m_window.findChild<SystemTrayIcon*>()->contextMenu()->actions();
        const auto found = std::ranges::find(actions, text, &QAction::text);
        return found == actions.end() ? nullptr : *found;
    }
};

TEST_F(HomePageAndTrayTest, KeepsFavoritesAtHand) {
    const auto* const list = widget<QListWidget>("favoritesList");
    for (const QString& text : {u"12345678"_s, u"123 456 789"_s, u"987654321"_s}) {
        typePartner(text);
        click("favoriteButton");
    }
    EXPECT_EQ(m_settings.favorites(), (QStringList{u"123456789"_s, u"987654321"_s}));
    ASSERT_EQ(list->count(), 2);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(0)).center());
    EXPECT_EQ(partner(), u"123 456 789"_s);
    EXPECT_EQ(m_window.focusWidget(), widget<QLineEdit>("partnerPasswordEdit"));
    click("favoriteButton");
    EXPECT_EQ(m_settings.favorites(), QStringList(u"987654321"_s));
    EXPECT_EQ(list->count(), 1);
}

TEST_F(HomePageAndTrayTest, HasRoomForAllThatItShows) {
    EXPECT_LE(m_window.centralWidget()->minimumSizeHint().width(), 420);
    typePartner(u"123456789"_s);
    click("favoriteButton");
    m_window.showUpdateBanner(u"99.0"_s, {}, {});
    const auto needed = [&] {
        return m_window.centralWidget()->minimumSizeHint().height();
    };
    EXPECT_GT(needed(), 600);
    EXPECT_TRUE(eventually([&] { return m_window.height() >= needed(); }));
}

TEST_F(HomePageAndTrayTest, WakesAPartnerWhoseAddressItAsksForOnce) {
    typePartner(u"123 456 789"_s);
    const QString sent = u"WoL|Wake-on-LAN packet sent to 01-02-03-0a-0B-0c"_s;
    const std::pair<QString, QString> cases[] = {{u"01:02:03"_s, u"WoL|Invalid MAC address."_s},
                                                 {u"01-02-03-0a-0B-0c"_s, sent},
                                                 {{}, sent}}; // nothing is asked
    for (const auto& [typed, box] : cases) {
        click("wakeButton");
        auto* const dialog = m_window.findChild<QInputDialog*>();
        ASSERT_EQ(dialog != nullptr, !typed.isEmpty());
        if (dialog != nullptr) {
            dialog->setTextValue(typed);
            QTest::keyClick(dialog, Qt::Key_Return);
            EXPECT_EQ(m_settings.wakeOnLanAddress(u"123456789"_s), typed);
            EXPECT_TRUE(eventually([&] { return m_window.findChild<QInputDialog*>() == nullptr; }));
        }
        const QString shown = takeBoxes().join(u'\n');
        // A machine without a network refuses the broadcast.
        EXPECT_TRUE(shown == box || shown.endsWith(u"could not be sent.")) << shown.toStdString();
    }
}

TEST_F(HomePageAndTrayTest, HidesInTheTrayOnlyWhereThereIsOne) {
    int quits = 0;
    QObject::connect(&m_window, &MainWindow::quitRequested, [&] { ++quits; });
    auto* const tray = m_window.findChild<SystemTrayIcon*>();
    m_isTrayThere = true;
    EXPECT_FALSE(m_window.close());
    EXPECT_FALSE(m_window.isVisible());
    EXPECT_EQ(quits, 0);
    Q_EMIT tray->showWindowRequested();
    EXPECT_TRUE(m_window.isVisible());
    m_window.showMinimized();
    Q_EMIT tray->showWindowRequested();
    EXPECT_FALSE(m_window.isMinimized());

    m_settings.setMinimizeToTray(false);
    EXPECT_TRUE(m_window.close());
    EXPECT_EQ(quits, 1);
    m_window.show();
    m_settings.setMinimizeToTray(true);
    m_isTrayThere = false;
    EXPECT_TRUE(m_window.close());
    EXPECT_EQ(quits, 2);
}

TEST_F(HomePageAndTrayTest, MirrorsTheSessionInTheTrayMenu) {
    EXPECT_NE(trayAction(u"Online (Ready)"_s), nullptr);
    EXPECT_FALSE(trayAction(u"Disconnect"_s)->isEnabled());
    const auto partner = viewNewDevice();
    ASSERT_NE(partner, nullptr);
    EXPECT_NE(trayAction(u"Connected"_s), nullptr);
    trayAction(u"Disconnect"_s)->trigger();
    EXPECT_TRUE(is(SessionState::Idle));
    EXPECT_FALSE(trayAction(u"Disconnect"_s)->isEnabled());

    const auto nextPartner = viewNewDevice();
    ASSERT_NE(nextPartner, nullptr);
    bool quits = false;
    QObject::connect(&m_window, &MainWindow::quitRequested, [&] { quits = true; });
    trayAction(u"Quit"_s)->trigger();
    EXPECT_TRUE(quits);
    // The partners' own reasons are among them.
    EXPECT_TRUE(eventually([this] {
        return closeReasons().count(u"user_disconnect"_s) == 1 &&
               closeReasons().count(u"application_quit"_s) == 1;
    }));
}

TEST_F(HomePageAndTrayTest, OffersAnUpdateAndStartsItsInstaller) {
    auto* const banner = widget<QWidget>("updateBanner");
    m_window.showUpdateBanner(u"<b>9</b>"_s, u"http://127.0.0.1/setup"_s, {});
    EXPECT_TRUE(banner->isVisible());
    EXPECT_EQ(label("updateText"), u"Update available: v<b>9</b>"_s);
    auto* const button = banner->findChild<QPushButton*>();
    QStringList requested;
    QObject::connect(&m_window, &MainWindow::updateRequested,
                     [&](const QString& url) { requested << url; });
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(requested, QStringList(u"http://127.0.0.1/setup"_s));
    EXPECT_EQ(button->text(), u"Downloading..."_s);
    m_window.showUpdateError(u"gone"_s);
    EXPECT_EQ(takeBoxes(), QStringList(u"Update|gone"_s));
    EXPECT_TRUE(button->isEnabled());
    m_window.launchInstaller(u"/nonexistent/CorvaneSetup.exe"_s);
    EXPECT_EQ(takeBoxes(), QStringList(u"Update|The installer could not be started."_s));
}

} // namespace
} // namespace corvane
