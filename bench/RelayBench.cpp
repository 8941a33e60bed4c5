#include "SideBySide.h"
#include "common/ByteViews.h"
#include "devserver/RelayNode.h"
#include "transport/RelayFrameParser.h"
#include "transport/RelayTransport.h"

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <benchmark/benchmark.h>

#include <algorithm>

// What the relay framing costs: two transports through the loopback relay node, compared with two
// bare sockets through a plain byte forwarder; and the cost per byte of splitting a read into
// frames.

namespace corvane {
namespace {

/// Bytes in flight per round: enough to keep all three ends busy, few enough to stay in memory.
constexpr int64_t kRoundBytes = 4 * 1024 * 1024;

int64_t messagesPerRound(int64_t size) {
    return std::max<int64_t>(1, kRoundBytes / size);
}

template <typename Condition>
void processEventsUntil(Condition done) {
    while (!done()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// Two transports that have joined a session at a relay node.
class RelayPair {
public:
    RelayPair() {
        if (!m_node.start(QHostAddress::LocalHost, 0, m_error)) {
            return;
        }
        const QString session = QStringLiteral("bench");
        for (RelayTransport* transport : {&m_sender, &m_receiver}) {
            transport->setSessionId(session);
            transport->connect("127.0.0.1", m_node.port());
        }
        processEventsUntil([&] { return m_node.joinedPeers(session) == 2; });
        QObject::connect(
            &m_receiver, &ITransport::dataReceived,
            [this](ChannelType, const QByteArray& data) { m_received += data.size(); });
    }

    /// Empty unless the node did not start.
    const QString& error() const { return m_error; }

    void pass(const ByteVector& message, int64_t count) {
        m_received = 0;
        for (int64_t i = 0; i < count; ++i) {
            m_sender.send(ChannelType::Video, message.data(), message.size());
        }
        const int64_t expected = count * static_cast<int64_t>(message.size());
        processEventsUntil([&] { return m_received == expected; });
    }

private:
    QString m_error;
    int64_t m_received = 0;
    devserver::RelayNode m_node{nullptr};
    RelayTransport m_sender;
    RelayTransport m_receiver;
};

/// Two bare sockets and a byte forwarder between them.
class SocketPair {
public:
    SocketPair() {
        m_server.listen(QHostAddress::LocalHost);
        QTcpSocket* const in = connectOne(m_sender);
        QTcpSocket* const out = connectOne(m_receiver);
        QObject::connect(in, &QTcpSocket::readyRead, [=] { out->write(in->readAll()); });
        QObject::connect(&m_receiver, &QTcpSocket::readyRead,
                         [this] { m_received += m_receiver.readAll().size(); });
    }

    void pass(const QByteArray& message, int64_t count) {
        m_received = 0;
        for (int64_t i = 0; i < count; ++i) {
            m_sender.write(message.constData(), message.size());
        }
        processEventsUntil([&] { return m_received == count * message.size(); });
    }

private:
    QTcpSocket* connectOne(QTcpSocket& socket) {
        socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        socket.connectToHost(QHostAddress::LocalHost, m_server.serverPort());
        processEventsUntil([&] { return m_server.hasPendingConnections(); });
        return m_server.nextPendingConnection();
    }

    int64_t m_received = 0;
    QTcpServer m_server;
    QTcpSocket m_sender;
    QTcpSocket m_receiver;
};

void relay(benchmark::State& state) {
    const int64_t size = state.range(0);
    const int64_t count = messagesPerRound(size);
    const ByteVector message(static_cast<size_t>(size), 0x5A);
    const QByteArray bareMessage(static_cast<qsizetype>(size), '\x5A');
    RelayPair transports;
    SocketPair sockets;
    if (!transports.error().isEmpty()) {
        state.SkipWithError(transports.error().toUtf8().constData());
        return;
    }
    sideBySide(
        state, count, [&] { transports.pass(message, count); },
        [&] { sockets.pass(bareMessage, count); });
}
BENCHMARK(relay)
    ->Name("Relay")
    ->Arg(1 << 10)
    ->Arg(1 << 16)
    ->Arg(1 << 20)
    ->UseManualTime()
    ->Iterations(200);

void parseFrames(benchmark::State& state) {
    constexpr size_t kPayloadSize = 64;
    const ByteVector payload(kPayloadSize, 0x5A);
    QByteArray read;
    for (int64_t i = 0; i < state.range(0); ++i) {
        read += relayFrame(ChannelType::Control, payload.data(), payload.size());
    }
    const ByteSpan bytes = bytesOf(read);
    RelayFrameParser parser;
    for (auto _ : state) {
        ByteSpan input = bytes;
        while (!input.empty()) {
            if (parser.consume(input) == RelayFrameParser::Result::FrameReady) {
                benchmark::DoNotOptimize(parser.takePayload().constData());
            }
        }
    }
    state.SetBytesProcessed(state.iterations() * read.size());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(parseFrames)->Name("ParseFrames")->Arg(10)->Arg(100)->Arg(1000);

} // namespace
} // namespace corvane
