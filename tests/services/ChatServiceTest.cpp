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

TEST_F(ChatServiceTest, SendsTheTimeAndAsMuchTextAsItsLengthCanName) {
    for (const QString& text : {QString(), QString(70'000, QLatin1Char('x'))}) {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        m_chat.sendMessage(text);
        m_chat.handleMessage(m_sent);
        const auto received = m_received.takeFirst();
        EXPECT_EQ(received[0].toString(), text.left(65'535));
        const auto time = received[1].toDateTime().toMSecsSinceEpoch();
        EXPECT_TRUE(time >= before && time <= QDateTime::currentMSecsSinceEpoch());
    }
    EXPECT_TRUE(m_log.once("warning|ChatService: message too long, truncating to 65535 bytes"));
    ChatService({}).sendMessage(u"to nobody"_s);
}

TEST_F(ChatServiceTest, ReceivesWhatItsLengthNames) {
    const QByteArray time = QByteArray::fromHex("0068e5cf8b010000"); // 1700000000000
    const std::pair<QByteArray, QStringList> cases[] = {
        {time + QByteArray("\0\0", 2), {QString()}},
        {time + QByteArray("\2\0hixyz", 7), {u"hi"_s}},
        {time.chopped(1), {}},
        {time + QByteArray("\5\0hi", 4), {}},
    };
    for (const auto& [payload, texts] : cases) {
        m_received.clear();
        m_chat.handleMessage(bytes(payload));
        ASSERT_EQ(m_received.count(), texts.size());
        for (const QVariantList& message : m_received) {
            EXPECT_EQ(message[0].toString(), texts[0]);
            EXPECT_EQ(message[1].toDateTime().toMSecsSinceEpoch(), 1'700'000'000'000);
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
