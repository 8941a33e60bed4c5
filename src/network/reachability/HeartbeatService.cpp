#include "network/reachability/HeartbeatService.h"

#include "network/server/ApiClient.h"
#include "network/server/HttpFetch.h"

#include <spdlog/spdlog.h>

#include <utility>

namespace corvane {

namespace {

// Qt also accepts the historic IPv4 notations with fewer than four numbers, which are mistakes
// here.
bool isAddress(const QString& text) {
    const QHostAddress address(text);
    return address.protocol() == QAbstractSocket::IPv4Protocol
               ? address.toString() == text
               : !address.isNull() && address.scopeId().isEmpty();
}

} // namespace

HeartbeatService::HeartbeatService(ApiClient* api, QObject* parent, HeartbeatOptions options)
    : QObject(parent), m_api(api), m_options(std::move(options)), m_natProbe(m_options.natProbe) {
    connect(&m_timer, &QTimer::timeout, this, &HeartbeatService::sendHeartbeat);
    connect(&m_natProbe, &NatProbe::mapped, this, &HeartbeatService::onNatMapped);
    connect(&m_natProbe, &NatProbe::finished, this, &HeartbeatService::onNatProbeFinished);
}

void HeartbeatService::start(int intervalMs) {
    spdlog::info("Heartbeat service started (interval: {} ms)", intervalMs);
    fetchPublicIp();
    detectNatType();
    m_timer.start(intervalMs);
    sendHeartbeat();
}

void HeartbeatService::sendHeartbeat() {
    m_api->sendHeartbeat(localIp(), m_publicIp, m_natType ? natTypeName(*m_natType) : QString());
}

void HeartbeatService::fetchPublicIp() {
    auto* const fetch =
        new HttpFetch(m_network, m_options.publicAddressUrl, kMaxPublicAddressBytes, this);
    connect(fetch, &HttpFetch::finished, this, [this, fetch](const QString& error) {
        if (error.isEmpty() || fetch->isTooLarge()) {
            onPublicAddress(fetch->take());
        }
    });
}

void HeartbeatService::onPublicAddress(const QByteArray& body) {
    const QString address = QString::fromUtf8(body).trimmed();
    if (!isAddress(address)) {
        spdlog::warn("HeartbeatService: the public-address service did not answer with an address");
        return;
    }
    m_publicIp = address;
    spdlog::info("Public IP detected: {}", m_publicIp.toStdString());
}

void HeartbeatService::detectNatType() {
    m_natProbe.start();
}

void HeartbeatService::onNatMapped(const MappedAddress& first, const MappedAddress& second) {
    if (!m_natType) {
        m_natType = NatProbe::classify(first, second, localIp());
        spdlog::info("NAT type detected: {}", natTypeName(*m_natType).toStdString());
    }
}

void HeartbeatService::onNatProbeFinished() {
    if (!m_natType) {
        spdlog::warn("STUN NAT detection timed out");
        m_natType = NatType::Unknown;
    }
}

QString HeartbeatService::localIp() const {
    for (const QHostAddress& address : m_options.hostAddresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol &&
            address != QHostAddress(QHostAddress::LocalHost)) {
            return address.toString();
        }
    }
    return {};
}

} // namespace corvane
