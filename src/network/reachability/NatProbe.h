#pragma once

#include "app/settings/DeploymentConstants.h"
#include "common/NatType.h"
#include "network/reachability/StunMessage.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUdpSocket>

#include <array>
#include <chrono>
#include <optional>

namespace corvane {

struct NatProbeOptions {
    /// Must be numeric: names are not resolved, and the probe would only time out.
    QString serverAddress = QString::fromLatin1(deployment::kStunAddress);
    quint16 serverPort = deployment::kStunPort;
    std::chrono::milliseconds timeout = std::chrono::seconds(3);
};

/// Asks a STUN server from two sockets how this host appears from outside. Main thread only.
class NatProbe : public QObject {
    Q_OBJECT

public:
    explicit NatProbe(NatProbeOptions options, QObject* parent = nullptr);

    /// Sends both requests. Replaces a probe that is still running.
    void start();

    /// `localAddress` is this host's own IPv4 address as text, which may be empty.
    static NatType classify(const MappedAddress& first, const MappedAddress& second,
                            const QString& localAddress);

Q_SIGNALS:
    /// The first two responses have arrived; later ones are ignored.
    void mapped(const corvane::MappedAddress& first, const corvane::MappedAddress& second);

    /// The timeout has passed, whatever arrived, and both sockets are closed.
    void finished();

private:
    void send(QUdpSocket& socket);
    void onReadable(QUdpSocket& socket);
    void onTimeout();

    NatProbeOptions m_options;
    std::array<QUdpSocket, 2> m_sockets;
    std::optional<MappedAddress> m_first;
    int m_responses = 0;
    QTimer m_timer;
};

} // namespace corvane
