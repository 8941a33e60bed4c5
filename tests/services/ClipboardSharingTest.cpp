#include "ClipboardSharing.h"
#include "LogCapture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

const QString kText = QStringLiteral("Grüße, 世界 & more\nsecond line");

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
        m_process.start(QCoreApplication::applicationDirPath() +
                            QStringLiteral("/clipboard_neighbour"),
                        arguments);
    }
    ~Neighbour() {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// What it sees. It may have to ask this program, so the event loop runs.
    QString clipboardText() {
        QByteArray digits;
        (void)QTest::qWaitFor(
            [&] {
                digits += m_process.readAll();
                return digits.endsWith('.');
            },
            10'000);
        return QString::fromUtf8(QByteArray::fromHex(digits));
    }

private:
    QProcess m_process;
};

class ClipboardSharingTest : public ::testing::Test {
protected:
    QByteArray sent(int index) const { return m_sent[index][0].toByteArray(); }

    static bool eventually(const std::function<bool()>& holds) {
        return QTest::qWaitFor(holds, 10'000);
    }

    LogCapture m_log;
    ClipboardSharing m_sharing;
    QSignalSpy m_sent{&m_sharing, &ClipboardSharing::clipboardDataReady};
};

TEST_F(ClipboardSharingTest, TextOfAnotherProgramIsSentAndThePeersReachesItWithoutEcho) {
    m_sharing.start();
    Neighbour owner({kText});
    ASSERT_TRUE(eventually([&] { return m_sent.count() == 1; }));
    EXPECT_EQ(sent(0), messageOf(kText));
    for (const QString& remote : {QStringLiteral("from the peer"), kText}) {
        m_log.clear();
        m_sharing.onRemoteClipboardData(messageOf(remote) + "beyond");
        EXPECT_TRUE(eventually([&] {
            return m_log.count("debug|ClipboardSharing: ignoring self-triggered clipboard "
                               "change") == 1;
        }));
        EXPECT_EQ(Neighbour({}).clipboardText(), remote);
    }
    Neighbour next({QStringLiteral("next")});
    ASSERT_TRUE(eventually([&] { return m_sent.count() > 1; }));
    EXPECT_EQ(sent(1), messageOf(QStringLiteral("next"))) << "nothing of the peer's went back";
}

TEST_F(ClipboardSharingTest, OnlyReasonableTextOfAnActiveServiceIsSent) {
    QClipboard* const clipboard = QGuiApplication::clipboard();
    clipboard->setText(QStringLiteral("before"));
    m_sharing.start();
    m_sharing.start();
    EXPECT_EQ(m_log.count("debug|ClipboardSharing already active"), 1);
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
    EXPECT_EQ(m_log.count("info|ClipboardSharing stopped"), 1);
    clipboard->setText(QStringLiteral("after"));
    m_sharing.start();
    clipboard->setText(QStringLiteral("again"));
    const QByteArray again = messageOf(QStringLiteral("again"));
    EXPECT_TRUE(eventually([&] { return m_sent.last()[0] == again; }));
    EXPECT_FALSE(m_sent.contains(QVariantList{messageOf(QStringLiteral("after"))}));
}

TEST_F(ClipboardSharingTest, MalformedMessagesLeaveTheClipboardAlone) {
    QGuiApplication::clipboard()->setText(kText);
    const struct {
        QByteArray message;
        const char* line;
    } cases[] = {
        {"", "warning|ClipboardSharing: received message too small (0 bytes, minimum 5)"},
        {QByteArray("\x04\x01\0\0", 4),
         "warning|ClipboardSharing: received message too small (4 bytes, minimum 5)"},
        {QByteArray("\x1e\x01\0\0\0x", 6),
         "warning|ClipboardSharing: unexpected message type tag 0x1E, expected 0x04"},
        {messageOf("x", 10'485'761), "warning|ClipboardSharing: remote clipboard text too large "
                                     "(10485761 bytes, max 10485760 bytes) — ignoring"},
        {messageOf("x", 0xFFFFFFFF), "warning|ClipboardSharing: remote clipboard text too large "
                                     "(4294967295 bytes, max 10485760 bytes) — ignoring"},
        {messageOf("abc", 4),
         "warning|ClipboardSharing: message truncated — expected 9 bytes, got 8"},
        {messageOf("", 0), "debug|ClipboardSharing: received empty clipboard text — ignoring"},
    };
    for (const auto& malformed : cases) {
        m_sharing.onRemoteClipboardData(malformed.message);
        EXPECT_EQ(m_log.lines().back(), malformed.line);
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), kText);
}

} // namespace
} // namespace corvane::test
