#include "peerbridge/PeerBridge.h"

namespace corvane {

namespace {

using namespace Qt::StringLiterals;

/// FNV-1a, which the programs at the other end also implement.
double checksum(const QByteArray& bytes) {
    uint32_t sum = 0x811C9DC5;
    for (const char byte : bytes) {
        sum = (sum ^ static_cast<uint8_t>(byte)) * 0x01000193;
    }
    return sum;
}

QByteArray pattern(int size, int seed) {
    QByteArray bytes(size, Qt::Uninitialized);
    auto state = static_cast<uint32_t>(seed);
    for (char& byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

} // namespace

PeerBridge::PeerBridge() {
    connect(
        &m_transport, &IPeerTransport::localDescriptionReady, this,
        [this](const QString& type, const QString& sdp) {
            Q_EMIT happened({{u"event"_s, u"description"_s}, {u"type"_s, type}, {u"sdp"_s, sdp}});
        });
    connect(&m_transport, &IPeerTransport::localCandidateReady, this,
            [this](const QString& candidate, const QString& mid) {
                Q_EMIT happened(
                    {{u"event"_s, u"candidate"_s}, {u"candidate"_s, candidate}, {u"mid"_s, mid}});
            });
    connect(&m_transport, &ITransport::connected, this, [this] {
        Q_EMIT happened({{u"event"_s, u"connected"_s},
                         {u"limit"_s, static_cast<int>(P2PTransport::kMaxMessageSize)}});
    });
    connect(&m_transport, &ITransport::disconnected, this, [this] {
        Q_EMIT happened({{u"event"_s, u"disconnected"_s}});
    });
    connect(&m_transport, &ITransport::dataReceived, this,
            [this](ChannelType channel, const QByteArray& bytes) {
                Q_EMIT happened({{u"event"_s, u"data"_s},
                                 {u"channel"_s, static_cast<int>(channel)},
                                 {u"size"_s, bytes.size()},
                                 {u"sum"_s, checksum(bytes)}});
            });
}

void PeerBridge::obey(const QJsonObject& command) {
    const QString verb = command[u"do"].toString();
    if (verb == u"offer") {
        m_transport.connect({}, 0);
    } else if (verb == u"answer") {
        m_transport.startAsAnswerer();
    } else if (verb == u"description") {
        m_transport.setRemoteDescription(command[u"sdp"].toString(), command[u"type"].toString());
    } else if (verb == u"candidate") {
        m_transport.addRemoteCandidate(command[u"candidate"].toString(),
                                       command[u"mid"].toString());
    } else if (verb == u"send") {
        send(command);
    }
}

void PeerBridge::send(const QJsonObject& command) {
    const QByteArray bytes = pattern(command[u"size"].toInt(), command[u"seed"].toInt());
    const bool sent = m_transport.send(static_cast<ChannelType>(command[u"channel"].toInt()),
                                       reinterpret_cast<const uint8_t*>(bytes.constData()),
                                       static_cast<size_t>(bytes.size()));
    Q_EMIT happened({{u"event"_s, u"sent"_s}, {u"ok"_s, sent}, {u"sum"_s, checksum(bytes)}});
}

} // namespace corvane
