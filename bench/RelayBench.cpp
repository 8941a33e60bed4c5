#include "RelayFrameParser.h"
#include "RelayNode.h"
#include "RelayTransport.h"

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <benchmark/benchmark.h>
#include <spdlog/spdlog.h>

#include <algorithm>

// What the relay framing costs: two transports through the loopback relay node, against two bare
// sockets through a plain byte forwarder; and what cutting a read into frames costs per byte.

namespace corvane {
namespace {

/// Bytes under way per round: enough to keep the three ends busy, little enough to stay in memory.
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

void relay(benchmark::State& state) {
    devserver::RelayNode node(nullptr);
    QString error;
    if (!node.start(QHostAddress::LocalHost, 0, error)) {
        state.SkipWithError(error.toUtf8().constData());
        return;
    }
    const QString session = QStringLiteral("bench");
    RelayTransport sender;
    RelayTransport receiver;
    for (RelayTransport* transport : {&sender, &receiver}) {
        transport->setSessionId(session);
        transport->connect("127.0.0.1", node.port());
    }
    processEventsUntil([&] { return node.joinedPeers(session) == 2; });

    int64_t received = 0;
    QObject::connect(&receiver, &ITransport::dataReceived,
                     [&](ChannelType, const QByteArray& data) { received += data.size(); });
    const ByteVector message(static_cast<size_t>(state.range(0)), 0x5A);
    const int64_t count = messagesPerRound(state.range(0));
    for (auto _ : state) {
        received = 0;
        for (int64_t i = 0; i < count; ++i) {
            sender.send(ChannelType::Video, message.data(), message.size());
        }
        processEventsUntil([&] { return received == count * state.range(0); });
    }
    state.SetBytesProcessed(state.iterations() * count * state.range(0));
}
BENCHMARK(relay)->Name("Relay")->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20)->UseRealTime();

void relayBareSockets(benchmark::State& state) {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    QTcpSocket sender;
    QTcpSocket receiver;
    for (QTcpSocket* socket : {&sender, &receiver}) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        socket->connectToHost(QHostAddress::LocalHost, server.serverPort());
        processEventsUntil([&] { return socket->state() == QAbstractSocket::ConnectedState; });
    }
    processEventsUntil([&] { return server.hasPendingConnections(); });
    QTcpSocket* in = server.nextPendingConnection();
    processEventsUntil([&] { return server.hasPendingConnections(); });
    QTcpSocket* out = server.nextPendingConnection();
    QObject::connect(in, &QTcpSocket::readyRead, [=] { out->write(in->readAll()); });

    int64_t received = 0;
    QObject::connect(&receiver, &QTcpSocket::readyRead,
                     [&] { received += receiver.readAll().size(); });
    const QByteArray message(static_cast<qsizetype>(state.range(0)), '\x5A');
    const int64_t count = messagesPerRound(state.range(0));
    for (auto _ : state) {
        received = 0;
        for (int64_t i = 0; i < count; ++i) {
            sender.write(message.constData(), message.size());
        }
        processEventsUntil([&] { return received == count * state.range(0); });
    }
    state.SetBytesProcessed(state.iterations() * count * state.range(0));
}
BENCHMARK(relayBareSockets)
    ->Name("RelayBareSockets")
    ->Arg(1 << 10)
    ->Arg(1 << 16)
    ->Arg(1 << 20)
    ->UseRealTime();

void parseFrames(benchmark::State& state) {
    constexpr size_t kPayloadSize = 64;
    const ByteVector payload(kPayloadSize, 0x5A);
    QByteArray read;
    for (int64_t i = 0; i < state.range(0); ++i) {
        read += relayFrame(ChannelType::Control, payload.data(), payload.size());
    }
    const ByteSpan bytes(reinterpret_cast<const uint8_t*>(read.constData()),
                         static_cast<size_t>(read.size()));
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

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    spdlog::set_level(spdlog::level::err);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
