#include "services/ChatService.h"
#include "support/Bytes.h"
#include "support/LogCapture.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

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
    const std::pair<QString, QByteArray> cases[] = {
        {QString(), QByteArray("\0\0", 2)},
        {u"hé"_s, QByteArray("\3\0h\xC3\xA9", 5)},
        {QString(70'000, QLatin1Char('x')), "\xFF\xFF" + QByteArray(65'535, 'x')},
    };
    for (const auto& [text, tail] : cases) {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        m_chat.sendMessage(text);
        ASSERT_EQ(ByteVector(m_sent.begin() + 8, m_sent.end()), bytes(tail));
        m_chat.handleMessage(m_sent);
        const auto time = m_received.takeFirst()[1].toDateTime().toMSecsSinceEpoch();
        EXPECT_GE(time, before);
        EXPECT_LE(time, QDateTime::currentMSecsSinceEpoch());
    }
    EXPECT_TRUE(m_log.once("warning|ChatService: message too long, truncating to 65535 bytes"));
    ChatService({}).sendMessage(u"to nobody"_s);
}

TEST_F(ChatServiceTest, ReceivesWhatItsLengthNames) {
    const QByteArray time = QByteArray::fromHex("0068e5cf8b010000"); // 1700000000000
    // Without a text it is dropped, with that line.
    const std::tuple<QByteArray, const char*, const char*> cases[] = {
        {time + QByteArray("\0\0", 2), "", ""},
        {time + QByteArray("\2\0hixyz", 7), "hi", ""},
        {time.chopped(1), nullptr, "warning|ChatService: message too short (7 bytes)"},
        {time + QByteArray("\5\0hi", 4), nullptr,
         "warning|ChatService: message truncated (expected 10 + 5 bytes)"},
    };
    for (const auto& [payload, text, line] : cases) {
        m_log.clear();
        m_received.clear();
        m_chat.handleMessage(bytes(payload));
        ASSERT_EQ(m_received.count(), text != nullptr ? 1 : 0);
        if (text != nullptr) {
            EXPECT_EQ(m_received[0][0].toString(), QLatin1String(text));
            EXPECT_EQ(m_received[0][1].toDateTime().toMSecsSinceEpoch(), 1'700'000'000'000);
        } else {
            EXPECT_TRUE(m_log.once(line));
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
