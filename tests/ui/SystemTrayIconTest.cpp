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

TEST(SystemTrayIcon, ItsMenuAndADoubleClickShowTheWindow) {
    SystemTrayIcon icon;
    QSignalSpy show(&icon, &SystemTrayIcon::showWindowRequested);
    QStringList texts;
    for (QAction* const action : icon.contextMenu()->actions()) {
        texts << action->text();
    }
    EXPECT_EQ(texts, QStringList({u"Show"_s, u"Status: Disconnected"_s, u""_s, u"Disconnect"_s,
                                  u"Quit"_s}));
    icon.contextMenu()->actions().first()->trigger();
    EXPECT_EQ(show.size(), 1);
    for (const auto reason : {QSystemTrayIcon::Context, QSystemTrayIcon::Trigger,
                              QSystemTrayIcon::MiddleClick, QSystemTrayIcon::DoubleClick}) {
        Q_EMIT icon.activated(reason);
        EXPECT_EQ(show.size(), reason == QSystemTrayIcon::DoubleClick ? 2 : 1) << reason;
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
