#pragma once

#include "network/reachability/NatProbe.h"

#include <QHostAddress>
#include <QList>
#include <QNetworkAccessManager>
#include <QNetworkInterface>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

class ApiClient;

struct HeartbeatOptions {
    /// A service that answers with the caller's address as plain text.
    QUrl publicAddressUrl = QUrl(QString::fromLatin1(deployment::kPublicAddressUrl));
    NatProbeOptions natProbe = {};
    /// All addresses of this host, in the system's order.
    std::function<QList<QHostAddress>()> hostAddresses = QNetworkInterface::allAddresses;
};

/// Periodically tells the server that this device is online and how it can be reached. Main thread
/// only.
class HeartbeatService : public QObject {
    Q_OBJECT

public:
    /// Borrows `api`, which must outlive it. Idle until `start`.
    explicit HeartbeatService(ApiClient* api, QObject* parent = nullptr,
                              HeartbeatOptions options = HeartbeatOptions());

    /// Sends a heartbeat now and then every `intervalMs` milliseconds, and refreshes the addresses
    /// that heartbeats carry. Cannot be stopped.
    void start(int intervalMs);

    /// Empty until the public-address service has answered.
    QString publicIp() const { return m_publicIp; }

    /// No value while the first probe runs; then the probe's answer or `Unknown`, which stays.
    std::optional<NatType> natType() const { return m_natType; }

public Q_SLOTS:
    void sendHeartbeat();
    void fetchPublicIp();
    void detectNatType();

private:
    void onNatMapped(const MappedAddress& first, const MappedAddress& second);
    void onNatProbeFinished();
    void onPublicAddress(const QByteArray& body);
    QString localIp() const;

    ApiClient* m_api;
    HeartbeatOptions m_options;
    QTimer m_timer;
    QNetworkAccessManager m_network;
    QString m_publicIp;
    std::optional<NatType> m_natType;
    NatProbe m_natProbe;
};

} // namespace corvane
