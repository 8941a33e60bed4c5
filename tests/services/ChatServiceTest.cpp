#include "ChatService.h"
#include "LogCapture.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

ByteVector bytes(const QByteArray& data) {
    return {data.begin(), data.end()};
}

class ChatServiceTest : public ::testing::Test {
protected:
    LogCapture m_log;
    ByteVector m_sent;
    ChatService m_chat{[this](const ByteVector& message) {
        m_sent = message;
        return true;
    }};
    QSignalSpy m_received{&m_chat, &ChatService::messageReceived};
};

TEST_F(ChatServiceTest, SendsTimeLengthAndText) {
    const struct {
        QString text;
        QByteArray tail; ///< after the time
    } cases[] = {
        {QString(), QByteArray("\0\0", 2)},
        {QStringLiteral("hé"), QByteArray("\3\0h\xC3\xA9", 5)},
        {QString(70'000, QLatin1Char('x')), "\xFF\xFF" + QByteArray(65'535, 'x')},
    };
    for (const auto& message : cases) {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        m_chat.sendMessage(message.text);
        ASSERT_EQ(ByteVector(m_sent.begin() + 8, m_sent.end()), bytes(message.tail));
        m_chat.handleMessage(m_sent);
        const auto time = m_received.takeFirst()[1].toDateTime().toMSecsSinceEpoch();
        EXPECT_GE(time, before);
        EXPECT_LE(time, QDateTime::currentMSecsSinceEpoch());
    }
    EXPECT_EQ(m_log.count("warning|ChatService: message too long, truncating to 65535 bytes"), 1);
    ChatService({}).sendMessage(QStringLiteral("to nobody"));
}

TEST_F(ChatServiceTest, ReceivesWhatItsLengthNames) {
    const QByteArray time = QByteArray::fromHex("0068e5cf8b010000"); // 1700000000000
    const struct {
        QByteArray payload;
        const char* text; ///< null when dropped
        const char* line;
    } cases[] = {
        {time + QByteArray("\0\0", 2), "", ""},
        {time + QByteArray("\2\0hixyz", 7), "hi", ""},
        {time.chopped(1), nullptr, "warning|ChatService: message too short (7 bytes)"},
        {time + QByteArray("\5\0hi", 4), nullptr,
         "warning|ChatService: message truncated (expected 10 + 5 bytes)"},
    };
    for (const auto& message : cases) {
        m_log.clear();
        m_received.clear();
        m_chat.handleMessage(bytes(message.payload));
        ASSERT_EQ(m_received.count(), message.text != nullptr ? 1 : 0);
        if (message.text != nullptr) {
            EXPECT_EQ(m_received[0][0].toString(), QLatin1String(message.text));
            EXPECT_EQ(m_received[0][1].toDateTime().toMSecsSinceEpoch(), 1'700'000'000'000);
        } else {
            EXPECT_EQ(m_log.count(message.line), 1);
        }
    }
}

TEST_F(ChatServiceTest, ATimeBeyondAllCalendarsIsStillADate) {
    for (const char* time : {"ffffffffffffffff", "0000000000000080", "ffffffffffffff7f"}) {
        m_chat.handleMessage(bytes(QByteArray::fromHex(time) + QByteArray("\0\0", 2)));
        EXPECT_TRUE(m_received.takeFirst()[1].toDateTime().isValid());
    }
}

} // namespace
} // namespace corvane::test
