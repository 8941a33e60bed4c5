#pragma once

#include "transport/P2PTransport.h"

#include <QJsonObject>
#include <QObject>

namespace corvane {

/// Lets another program drive a `P2PTransport` with JSON: one object per command and per event.
///
/// Commands: {"do": "offer" | "answer" | "description" (type, sdp) | "candidate" (candidate, mid) |
/// "send" (channel, size, seed)}. Events: {"event": "description" (type, sdp) | "candidate"
/// (candidate, mid) | "connected" (limit) | "disconnected" | "data" (channel, size, sum) | "sent"
/// (ok, sum)}.
class PeerBridge : public QObject {
    Q_OBJECT

public:
    PeerBridge();

public Q_SLOTS:
    void obey(const QJsonObject& command);

Q_SIGNALS:
    void happened(const QJsonObject& event);

private:
    void send(const QJsonObject& command);

    P2PTransport m_transport;
};

} // namespace corvane
