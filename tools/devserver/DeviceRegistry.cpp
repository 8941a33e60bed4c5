#include "devserver/DeviceRegistry.h"

#include <QRandomGenerator>

#include <array>

namespace corvane::devserver {
namespace {

constexpr qsizetype kMaxDevices = 10'000;

QString randomText() {
    std::array<quint32, 6> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(words.data()),
                                               qsizetype{sizeof(words)});
    return QString::fromLatin1(bytes.toHex());
}

} // namespace

std::optional<Device> DeviceRegistry::registerDevice(const QString& fingerprint) {
    const QString known =
        fingerprint.isEmpty() ? QString() : m_clientsByFingerprint.value(fingerprint);
    if (known.isEmpty() && m_devices.size() >= kMaxDevices) {
        return std::nullopt;
    }
    const QString clientId = known.isEmpty() ? freeClientId() : known;
    Device& device = m_devices[clientId];
    if (known.isEmpty()) {
        device.clientId = clientId;
        device.token = randomText();
        m_clientsByToken.insert(device.token, clientId);
        if (!fingerprint.isEmpty()) {
            m_clientsByFingerprint.insert(fingerprint, clientId);
        }
    }
    device.secret = randomText();
    return device;
}

std::optional<Device> DeviceRegistry::login(const QString& clientId, const QString& secret) const {
    const auto device = m_devices.find(clientId);
    if (device == m_devices.end() || device->secret != secret) {
        return std::nullopt;
    }
    return *device;
}

QString DeviceRegistry::freeClientId() const {
    QString clientId;
    do {
        clientId = QString::number(QRandomGenerator::system()->bounded(100'000'000, 1'000'000'000));
    } while (m_devices.contains(clientId));
    return clientId;
}

} // namespace corvane::devserver
