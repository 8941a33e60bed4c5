#pragma once

#include <QHash>
#include <QString>

#include <optional>

namespace corvane::devserver {

/// A registered device and its credentials.
struct Device {
    QString clientId; ///< nine digits
    QString secret;
    QString token;
};

/// Knows every device that has ever registered, for as long as the process lives.
class DeviceRegistry {
public:
    /// A known machine fingerprint returns the same device with a fresh secret; an empty one always
    /// creates a new device. No value when the registry is full.
    std::optional<Device> registerDevice(const QString& fingerprint);

    /// The device, or no value when the secret is not its current one.
    std::optional<Device> login(const QString& clientId, const QString& secret) const;

    bool contains(const QString& clientId) const { return m_devices.contains(clientId); }

    /// The device a token was issued to; empty when there is none.
    QString clientOfToken(const QString& token) const { return m_clientsByToken.value(token); }

private:
    QString freeClientId() const;

    QHash<QString, Device> m_devices;
    QHash<QString, QString> m_clientsByFingerprint;
    QHash<QString, QString> m_clientsByToken;
};

} // namespace corvane::devserver
