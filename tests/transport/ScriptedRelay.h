#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <cstdint>
#include <memory>

namespace corvane::test {

/// A frame spelt out byte by byte, for a claimed length that may differ from the payload's.
inline QByteArray frameBytes(uint8_t channel, uint32_t length, const QByteArray& payload = {}) {
    QByteArray bytes;
    bytes.append(static_cast<char>(channel));
    for (const int shift : {24, 16, 8, 0}) {
        bytes.append(static_cast<char>(length >> shift));
    }
    return bytes + payload;
}

inline QByteArray frameBytes(uint8_t channel, const QByteArray& payload) {
    return frameBytes(channel, static_cast<uint32_t>(payload.size()), payload);
}

/// The relay's end of a loopback link: takes one peer at a time and does what the test says.
class ScriptedRelay {
public:
    ScriptedRelay() { m_server.listen(QHostAddress::LocalHost); }

    uint16_t port() const { return m_server.serverPort(); }

    /// Waits for the next peer.
    bool accept() {
        const bool pending = QTest::qWaitFor([this] { return m_server.hasPendingConnections(); });
        m_peer.reset(m_server.nextPendingConnection());
        return pending;
    }

    /// Stops listening, so that connections to the port are refused from now on.
    void refuse() { m_server.close(); }
    void listenAgain(uint16_t port) { m_server.listen(QHostAddress::LocalHost, port); }
    bool hasVisitor() const { return m_server.hasPendingConnections(); }

    void drop() { m_peer->disconnectFromHost(); }
    void write(const QByteArray& bytes) { m_peer->write(bytes); }

    /// The next `count` bytes from the peer, fewer when they do not come.
    QByteArray read(qint64 count) {
        (void)QTest::qWaitFor([&] { return m_peer->bytesAvailable() >= count; }, 20'000);
        return m_peer->read(count);
    }

    qint64 unread() const { return m_peer->bytesAvailable(); }

private:
    QTcpServer m_server;
    std::unique_ptr<QTcpSocket> m_peer;
};

} // namespace corvane::test
