#include "ui/SystemTrayIcon.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// An icon on a desktop whose balloons are kept.
class RecordingTrayIcon : public SystemTrayIcon {
public:
    QStringList m_balloons;

private:
    bool hasBalloons() const override { return true; }
    void showBalloon(const QString& title, const QString& text, MessageIcon kind,
                     int milliseconds) override {
        m_balloons << u"%1|%2|%3|%4"_s.arg(title, text).arg(kind).arg(milliseconds);
    }
};

TEST(SystemTrayIcon, ItsMenuAndADoubleClickRaiseSignals) {
    SystemTrayIcon icon;
    QMenu* const menu = icon.contextMenu();
    QSignalSpy show(&icon, &SystemTrayIcon::showWindowRequested);
    QSignalSpy disconnect(&icon, &SystemTrayIcon::disconnectRequested);
    QSignalSpy quit(&icon, &SystemTrayIcon::quitRequested);
    const auto click = [menu](int item) {
        QAction* const action = menu->actions().at(item);
        menu->popup(QPoint(0, 0));
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        menu->hide();
        return action->text();
    };

    QStringList texts;
    for (int item = 0; item < menu->actions().size(); ++item) {
        texts << click(item);
    }
    EXPECT_EQ(texts, QStringList({u"Show"_s, u"Status: Disconnected"_s, u""_s, u"Disconnect"_s,
                                  u"Quit"_s}));
    EXPECT_TRUE(menu->actions().at(2)->isSeparator());
    EXPECT_EQ(show.size(), 1);
    EXPECT_EQ(quit.size(), 1);
    EXPECT_EQ(disconnect.size(), 0);

    icon.setStatus(u"Connected"_s);
    EXPECT_EQ(click(1), u"Connected"_s);
    for (const bool enabled : {true, false}) {
        icon.setDisconnectEnabled(enabled);
        click(3);
        EXPECT_EQ(disconnect.size(), 1);
    }

    show.clear();
    for (const auto reason : {QSystemTrayIcon::Context, QSystemTrayIcon::Trigger,
                              QSystemTrayIcon::MiddleClick, QSystemTrayIcon::DoubleClick}) {
        Q_EMIT icon.activated(reason);
        EXPECT_EQ(show.size(), reason == QSystemTrayIcon::DoubleClick ? 1 : 0) << reason;
    }
}

TEST(SystemTrayIcon, ShowsBalloons) {
    RecordingTrayIcon icon;
    icon.showConnectionRequest(u"123 456 789"_s);
    icon.showNotification(u"Title"_s, u"Text"_s, QSystemTrayIcon::Warning);
    const QStringList shown = {
        u"Incoming Connection|Client 123 456 789 is requesting a remote connection.|1|5000"_s,
        u"Title|Text|2|5000"_s};
    EXPECT_EQ(icon.m_balloons, shown);
}

} // namespace
} // namespace corvane
