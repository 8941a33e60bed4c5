#include "network/server/ApiClient.h"
#include "network/server/SignalingClient.h"
#include "services/ConnectionQualityMonitor.h"
#include "session/SessionManager.h"
#include "ui/ChatDialog.h"
#include "ui/ConnectionInfoDialog.h"

#include <QDateTime>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBrowser>
#include <gtest/gtest.h>

#include <optional>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

class ChatDialogTest : public ::testing::Test {
protected:
    ChatDialogTest() {
        m_dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_dialog));
    }

    QString transcript() const { return m_transcript->toPlainText(); }

    const QDateTime m_time{{2026, 1, 2}, {3, 4}};
    ChatDialog m_dialog;
    QTextBrowser* const m_transcript = m_dialog.findChild<QTextBrowser*>();
    QLineEdit* const m_input = m_dialog.findChild<QLineEdit*>();
    QSignalSpy m_sent{&m_dialog, &ChatDialog::messageSent};
};

TEST_F(ChatDialogTest, SendsWhatWasTyped) {
    EXPECT_TRUE(m_dialog.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(m_dialog.focusWidget(), m_input);

    const QString longest(ChatDialog::kMaxMessage, u'x');
    const std::pair<QString, std::optional<QString>> cases[] = {
        {u"hello"_s, u"hello"_s},
        {u"\t <b>&amp;</b> ü  "_s, u"<b>&amp;</b> ü"_s},
        {u"    "_s, std::nullopt},
        {longest, longest},
        {u"  "_s + longest + u"yz"_s, longest},
    };
    for (const auto& [typed, sent] : cases) {
        m_sent.clear();
        m_input->setText(typed);
        QTest::keyClick(m_input, Qt::Key_Return);
        EXPECT_EQ(m_sent.size(), sent ? 1 : 0);
        EXPECT_EQ(m_sent.value(0).value(0).toString(), sent.value_or(QString()));
        EXPECT_EQ(m_input->text(), sent ? QString() : typed);
    }
    m_input->setText(u"sent"_s);
    QTest::mouseClick(m_dialog.findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_EQ(m_input->text(), QString());
    EXPECT_TRUE(transcript().isEmpty()); // its creator decides what was said

    m_input->setText(u"half"_s);
    QTest::keyClick(&m_dialog, Qt::Key_Escape);
    EXPECT_FALSE(m_dialog.isVisible());
    m_dialog.show();
    QCoreApplication::processEvents();
    QTest::keyClicks(m_dialog.focusWidget(), u" done"_s);
    EXPECT_EQ(m_input->text(), u"half done"_s);
}

TEST_F(ChatDialogTest, ShowsEverythingLiterally) {
    const QString markup = u"<img src='x'> &lt; <a href='file:///'>\"%1\"</a>"_s;
    m_dialog.appendMessage(ChatDialog::ownName(), markup, m_time);
    m_dialog.appendMessage(u"<i>Remote</i> %4"_s, u"%2"_s, m_time);
    EXPECT_EQ(transcript(), u"Me 03:04\n"_s + markup + u"\n<i>Remote</i> %4 03:04\n%2"_s);
    EXPECT_FALSE(m_transcript->toHtml().contains(u"<a "));
}

TEST_F(ChatDialogTest, KeepsTheLatestInView) {
    QScrollBar* const bar = m_transcript->verticalScrollBar();
    for (int i = 0; i < ChatDialog::kMaxMessages + 20; ++i) {
        if (i == 40) {
            bar->setValue(0);
        }
        m_dialog.appendMessage(u"Remote"_s, QString::number(i), m_time);
        EXPECT_EQ(bar->value(), bar->maximum());
    }
    EXPECT_GT(bar->maximum(), 0);
    EXPECT_EQ(m_transcript->document()->blockCount(), ChatDialog::kMaxMessages);
    EXPECT_TRUE(transcript().startsWith(u"Remote 03:04\n20\n"));

    m_dialog.hide();
    m_dialog.appendMessage(u"Remote"_s, u"while hidden"_s, m_time);
    m_dialog.show();
    EXPECT_EQ(bar->value(), bar->maximum());
}

class ConnectionInfoDialogTest : public ::testing::Test {
protected:
    /// "caption value" of each row.
    static QStringList rows(const ConnectionInfoDialog& dialog) {
        QStringList rows;
        for (const QFormLayout* form : dialog.findChildren<QFormLayout*>()) {
            for (int row = 0; row < form->rowCount(); ++row) {
                const auto text = [&](QFormLayout::ItemRole role) {
                    return qobject_cast<QLabel*>(form->itemAt(row, role)->widget())->text();
                };
                rows << text(QFormLayout::LabelRole) + u' ' + text(QFormLayout::FieldRole);
            }
        }
        return rows;
    }

    ApiClient m_api;
    SignalingClient m_signaling;
    SessionManager m_session{&m_api, &m_signaling};
};

TEST_F(ConnectionInfoDialogTest, ShowsTheSessionAndItsQuality) {
    m_session.acceptSession(u"<b>s-1</b>"_s, u"123 456789"_s, QString());
    ConnectionInfoDialog dialog(&m_session, nullptr);
    const QStringList session{u"Session ID: <b>s-1</b>"_s, u"Remote ID: 123 456 789"_s,
                              u"Role: Target (Sharing)"_s, u"Transport: "_s};
    EXPECT_EQ(rows(dialog),
              session + QStringList({u"FPS: —"_s, u"Latency: —"_s, u"Bandwidth: —"_s, u"Sent: —"_s,
                                     u"Received: —"_s, u"Dropped Frames: —"_s, u"Uptime: —"_s}));
    dialog.showStats({4, 12.34, 1000.5, 1'048'576, -1, 1'234'567, 90'000});
    EXPECT_EQ(rows(dialog),
              session + QStringList({u"FPS: 4.0"_s, u"Latency: 12.3 ms"_s, u"Bandwidth: 1.0 Mbps"_s,
                                     u"Sent: 1.0 MB"_s, u"Received: 0 B"_s,
                                     u"Dropped Frames: 1234567"_s, u"Uptime: 25:00:00"_s}));
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        EXPECT_TRUE(label->buddy() || label->textFormat() == Qt::PlainText);
    }
}

TEST_F(ConnectionInfoDialogTest, FollowsTheMonitorWhileThereIsOne) {
    auto monitor = std::make_unique<ConnectionQualityMonitor>();
    ConnectionInfoDialog dialog(&m_session, monitor.get());
    auto* const timer = dialog.findChild<QTimer*>();
    EXPECT_EQ(timer->interval(), 1000);
    const auto sent = [&] {
        return dialog.findChild<QLabel*>(u"sentValue"_s)->text();
    };
    EXPECT_EQ(sent(), u"0 B"_s); // refreshed at once
    timer->setInterval(1);
    monitor->addBytesSent(2048);
    monitor->onUpdateTick();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sent() == u"2.0 KB"; }));
    monitor.reset();
    QSignalSpy ticks(timer, &QTimer::timeout);
    EXPECT_TRUE(ticks.wait());
    EXPECT_EQ(sent(), u"2.0 KB"_s);
}

} // namespace
} // namespace corvane
