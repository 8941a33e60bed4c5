#include "app/settings/SettingsController.h"

#include "app/settings/DeploymentConstants.h"
#include "app/settings/PrivateSettings.h"
#include "common/DisplayMode.h"
#include "common/PartnerId.h"

namespace corvane {

namespace {

const auto kLanguage = QStringLiteral("general/language");
/// How QSettings reads the key above back from a file, where the group "general" is special.
const auto kLanguageReadBack = QStringLiteral("General/language");
const auto kClientId = QStringLiteral("auth/clientId");
const auto kDeviceSecret = QStringLiteral("auth/deviceSecret");
const auto kSessionPassword = QStringLiteral("auth/sessionPassword");
const auto kDisplayMode = QStringLiteral("display/mode");
const auto kMonitorIndex = QStringLiteral("display/monitorIndex");
const auto kClipboardSharing = QStringLiteral("display/clipboardSharing");
const auto kAutoReconnect = QStringLiteral("network/autoReconnect");
const auto kMaxReconnectAttempts = QStringLiteral("network/maxReconnectAttempts");
const auto kMinimizeToTray = QStringLiteral("advanced/minimizeToTray");
const auto kFavorites = QStringLiteral("favorites/partnerIds");
const auto kRecentPartners = QStringLiteral("history/recentPartnerIds");

constexpr int kMaxFavorites = 20;
constexpr int kMaxRecentPartners = 10;

QString wakeOnLanKey(const QString& partnerId) {
    return QStringLiteral("wol/") + barePartnerId(partnerId);
}

} // namespace

SettingsController::SettingsController(QObject* parent)
    : QObject(parent), m_settings(QSettings::NativeFormat, QSettings::UserScope,
                                  QStringLiteral("Corvane"), QStringLiteral("CorvaneClient")) {
    keepPrivate(m_settings);
}

QString SettingsController::language() const {
    return m_settings.value(kLanguage, m_settings.value(kLanguageReadBack)).toString();
}

void SettingsController::setLanguage(const QString& language) {
    m_settings.remove(kLanguageReadBack);
    m_settings.setValue(kLanguage, language);
}

QString SettingsController::clientId() const {
    return m_settings.value(kClientId).toString();
}

void SettingsController::setClientId(const QString& clientId) {
    m_settings.setValue(kClientId, clientId);
}

QString SettingsController::deviceSecret() const {
    return m_settings.value(kDeviceSecret).toString();
}

void SettingsController::setDeviceSecret(const QString& deviceSecret) {
    m_settings.setValue(kDeviceSecret, deviceSecret);
}

bool SettingsController::hasCredentials() const {
    return !clientId().isEmpty() && !deviceSecret().isEmpty();
}

QString SettingsController::sessionPassword() const {
    return m_settings.value(kSessionPassword).toString();
}

void SettingsController::setSessionPassword(const QString& password) {
    m_settings.setValue(kSessionPassword, password);
}

int SettingsController::displayMode() const {
    return m_settings.value(kDisplayMode, static_cast<int>(DisplayMode::Speed)).toInt();
}

void SettingsController::setDisplayMode(int mode) {
    m_settings.setValue(kDisplayMode, mode);
}

int SettingsController::monitorIndex() const {
    return m_settings.value(kMonitorIndex, 0).toInt();
}

void SettingsController::setMonitorIndex(int index) {
    m_settings.setValue(kMonitorIndex, index);
}

bool SettingsController::clipboardSharing() const {
    return m_settings.value(kClipboardSharing, true).toBool();
}

void SettingsController::setClipboardSharing(bool enabled) {
    m_settings.setValue(kClipboardSharing, enabled);
}

bool SettingsController::autoReconnect() const {
    return m_settings.value(kAutoReconnect, true).toBool();
}

void SettingsController::setAutoReconnect(bool enabled) {
    m_settings.setValue(kAutoReconnect, enabled);
}

int SettingsController::maxReconnectAttempts() const {
    return m_settings.value(kMaxReconnectAttempts, kDefaultMaxReconnectAttempts).toInt();
}

void SettingsController::setMaxReconnectAttempts(int attempts) {
    m_settings.setValue(kMaxReconnectAttempts, attempts);
}

bool SettingsController::minimizeToTray() const {
    return m_settings.value(kMinimizeToTray, true).toBool();
}

void SettingsController::setMinimizeToTray(bool enabled) {
    m_settings.setValue(kMinimizeToTray, enabled);
}

QStringList SettingsController::favorites() const {
    return m_settings.value(kFavorites).toStringList();
}

void SettingsController::addFavorite(const QString& partnerId) {
    const QString id = barePartnerId(partnerId);
    QStringList ids = favorites();
    if (id.isEmpty() || ids.contains(id) || ids.size() >= kMaxFavorites) {
        return;
    }
    ids.append(id);
    m_settings.setValue(kFavorites, ids);
}

void SettingsController::removeFavorite(const QString& partnerId) {
    const QString id = barePartnerId(partnerId);
    if (id.isEmpty()) {
        return;
    }
    QStringList ids = favorites();
    ids.removeAll(id);
    m_settings.setValue(kFavorites, ids);
}

QStringList SettingsController::recentPartners() const {
    return m_settings.value(kRecentPartners).toStringList();
}

void SettingsController::addRecentPartner(const QString& partnerId) {
    const QString id = barePartnerId(partnerId);
    if (id.isEmpty()) {
        return;
    }
    QStringList ids = recentPartners();
    ids.removeAll(id);
    ids.prepend(id);
    m_settings.setValue(kRecentPartners, ids.mid(0, kMaxRecentPartners));
}

QString SettingsController::wakeOnLanAddress(const QString& partnerId) const {
    return m_settings.value(wakeOnLanKey(partnerId)).toString();
}

void SettingsController::setWakeOnLanAddress(const QString& partnerId, const QString& macAddress) {
    m_settings.setValue(wakeOnLanKey(partnerId), macAddress);
}

int SettingsController::captureFrameRate() const {
    return presetOf(DisplayMode{displayMode()}).framesPerSecond;
}

int SettingsController::frameRateWithInput() const {
    return presetOf(DisplayMode{displayMode()}).framesPerSecondWithInput;
}

int SettingsController::encoderQuality() const {
    return presetOf(DisplayMode{displayMode()}).encoderQuality;
}

QString SettingsController::encoderSpeed() const {
    return QString::fromLatin1(kEncoderSpeed);
}

QUrl SettingsController::serverBaseUrl() const {
    return QUrl(QString::fromLatin1(deployment::kServerUrl));
}

} // namespace corvane
