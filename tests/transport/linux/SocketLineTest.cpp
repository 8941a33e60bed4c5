#include "transport/SocketLine.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

TEST(SocketLine, IsMeasuredOnAConnectionAndNowhereElse) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QTcpSocket socket;
    socket.connectToHost(server.serverAddress(), server.serverPort());
    ASSERT_TRUE(socket.waitForConnected());
    const auto milliseconds = socketRoundTripMilliseconds(socket.socketDescriptor());
    ASSERT_TRUE(milliseconds.has_value());
    EXPECT_GT(*milliseconds, 0);
    EXPECT_LT(*milliseconds, 1000);
    EXPECT_EQ(socketRoundTripMilliseconds(-1), std::nullopt);
}

} // namespace
} // namespace corvane::test
