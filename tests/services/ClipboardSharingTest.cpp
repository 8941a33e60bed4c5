#include "services/ClipboardSharing.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QSignalSpy>
#include <gmock/gmock.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

const QString kText = u"Grüße, 世界 & more\nsecond line"_s;

QByteArray messageOf(const QByteArray& utf8, quint32 length) {
    QByteArray message(1, '\x04');
    for (int shift = 0; shift < 32; shift += 8) {
        message.append(static_cast<char>(length >> shift));
    }
    return message + utf8;
}

QByteArray messageOf(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return messageOf(utf8, static_cast<quint32>(utf8.size()));
}

/// Another program on this clipboard.
class Neighbour {
public:
    explicit Neighbour(const QStringList& arguments) {
        m_process.start(QCoreApplication::applicationDirPath() + u"/clipboard_neighbour"_s,
                        arguments);
    }
    ~Neighbour() {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// What it sees. It may have to ask this program, so the event loop runs.
    QString clipboardText() {
        QByteArray digits;
        eventually([&] { return (digits += m_process.readAll()).endsWith('.'); });
        return QString::fromUtf8(QByteArray::fromHex(digits));
    }

private:
    QProcess m_process;
};

class ClipboardSharingTest : public ::testing::Test {
protected:
    QByteArray sent(int index) const { return m_sent[index][0].toByteArray(); }

    LogCapture m_log;
    ClipboardSharing m_sharing;
    QSignalSpy m_sent{&m_sharing, &ClipboardSharing::clipboardDataReady};
};

TEST_F(ClipboardSharingTest, TextOfAnotherProgramIsSentAndThePeersReachesItWithoutEcho) {
    m_sharing.start();
    Neighbour owner({kText});
    ASSERT_TRUE(eventually([&] { return m_sent.count() == 1; }));
    EXPECT_EQ(sent(0), messageOf(kText));
    for (const QString& remote : {u"from the peer"_s, kText}) {
        m_log.clear();
        m_sharing.onRemoteClipboardData(messageOf(remote) + "beyond");
        EXPECT_TRUE(eventually([&] {
            return m_log.count("debug|ClipboardSharing: ignoring self-triggered clipboard "
                               "change") == 1;
        }));
        EXPECT_EQ(Neighbour({}).clipboardText(), remote);
    }
    Neighbour next({u"next"_s});
    ASSERT_TRUE(eventually([&] { return m_sent.count() > 1; }));
    EXPECT_EQ(sent(1), messageOf(u"next"_s)) << "nothing of the peer's went back";
}

TEST_F(ClipboardSharingTest, OnlyReasonableTextOfAnActiveServiceIsSent) {
    QClipboard* const clipboard = QGuiApplication::clipboard();
    clipboard->setText(u"before"_s);
    m_sharing.start();
    m_sharing.start();
    clipboard->setImage(QImage(4, 4, QImage::Format_RGB32));
    clipboard->setText(QString());
    const QString largest(10'485'760, QLatin1Char('x'));
    clipboard->setText(largest + QLatin1Char('x'));
    // A system that tells of changes later may tell of each, and each time finds the last text.
    EXPECT_TRUE(eventually([&] {
        return m_log.contains("ClipboardSharing: local clipboard text too large (10485761 "
                              "bytes, max 10485760 bytes) — skipping");
    }));
    EXPECT_EQ(m_sent.count(), 0);
    clipboard->setText(largest);
    ASSERT_TRUE(eventually([&] { return m_sent.count() > 0; }));
    EXPECT_TRUE(sent(0) == messageOf(largest));

    m_sharing.stop();
    clipboard->setText(u"after"_s);
    m_sharing.start();
    clipboard->setText(u"again"_s);
    const QByteArray again = messageOf(u"again"_s);
    EXPECT_TRUE(eventually([&] { return m_sent.last()[0] == again; }));
    EXPECT_FALSE(m_sent.contains(QVariantList{messageOf(u"after"_s)}));
}

TEST_F(ClipboardSharingTest, MalformedMessagesLeaveTheClipboardAlone) {
    QGuiApplication::clipboard()->setText(kText);
    const std::pair<QByteArray, const char*> cases[] = {
        {QByteArray("\x04\x01\0\0", 4), "received message too small (4 bytes, minimum 5)"},
        {QByteArray("\x1e\x01\0\0\0x", 6), "unexpected message type tag 0x1E, expected 0x04"},
        {messageOf("x", 0xFFFFFFFF),
         "remote clipboard text too large (4294967295 bytes, max 10485760 bytes) — ignoring"},
        {messageOf("abc", 4), "message truncated — expected 9 bytes, got 8"},
        {messageOf("", 0), "received empty clipboard text — ignoring"},
    };
    for (const auto& [message, line] : cases) {
        m_sharing.onRemoteClipboardData(message);
        EXPECT_THAT(m_log.lines().back(), testing::EndsWith(line));
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), kText);
}

} // namespace
} // namespace corvane::test
