#pragma once

#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace corvane {

/// What the program keeps across restarts, in the user's native settings store. Reads and writes go
/// straight to the store: a missing value reads as its default, no error is reported. Main thread
/// only.
///
/// Partner IDs may be given with spaces between their digit groups; they are kept without.
class SettingsController : public QObject {
    Q_OBJECT

public:
    explicit SettingsController(QObject* parent = nullptr);

    /// Two-letter interface language; empty (default) for the system's.
    QString language() const;
    void setLanguage(const QString& language);

    /// The nine-digit ID that the server issued; empty (default) before registration.
    QString clientId() const;
    void setClientId(const QString& clientId);

    /// Issued together with the client ID, for automatic login.
    QString deviceSecret() const;
    void setDeviceSecret(const QString& deviceSecret);

    /// Whether both the client ID and the device secret are known.
    bool hasCredentials() const;

    /// What a viewer must give to connect to this machine.
    QString sessionPassword() const;
    void setSessionPassword(const QString& password);

    /// The number of a `DisplayMode`, default `Speed`; any number can be kept.
    int displayMode() const;
    void setDisplayMode(int mode);

    /// The monitor to capture when this machine is shared, default 0.
    int monitorIndex() const;
    void setMonitorIndex(int index);

    /// Default true.
    bool clipboardSharing() const;
    void setClipboardSharing(bool enabled);

    /// Default true.
    bool autoReconnect() const;
    void setAutoReconnect(bool enabled);

    static constexpr int kDefaultMaxReconnectAttempts = 10;
    int maxReconnectAttempts() const;
    void setMaxReconnectAttempts(int attempts);

    /// Whether closing the main window hides it in the tray; default true.
    bool minimizeToTray() const;
    void setMinimizeToTray(bool enabled);

    /// Favourite partners in the order added, at most 20.
    QStringList favorites() const;
    /// Appends the partner; does nothing when it is there already or the list is full.
    void addFavorite(const QString& partnerId);
    void removeFavorite(const QString& partnerId);

    /// Partners contacted last, newest first, at most 10.
    QStringList recentPartners() const;
    /// Puts the partner in front, dropping the oldest when the list is full.
    void addRecentPartner(const QString& partnerId);

    /// The partner's network card, "XX:XX:XX:XX:XX:XX"; empty when never entered.
    QString wakeOnLanAddress(const QString& partnerId) const;
    void setWakeOnLanAddress(const QString& partnerId, const QString& macAddress);

    /// Frames per second that the display mode asks for.
    int captureFrameRate() const;
    /// The same while the viewer types or moves the pointer.
    int frameRateWithInput() const;
    /// Encoder quality (lower is better) that the display mode asks for.
    int encoderQuality() const;
    /// The encoder's speed setting; the same in every mode.
    QString encoderSpeed() const;

    /// Base URL of the central server, a constant of the build.
    QUrl serverBaseUrl() const;

private:
    QSettings m_settings;
};

} // namespace corvane
