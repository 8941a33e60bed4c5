#include "SettingsController.h"

#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace corvane {
namespace {

/// The settings store and a second view of the same values, in a folder of their own.
class SettingsControllerTest : public testing::Test {
protected:
    SettingsControllerTest() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.path());
        m_settings = std::make_unique<SettingsController>();
        m_raw =
            std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                        QStringLiteral("Corvane"), QStringLiteral("CorvaneClient"));
    }

    QTemporaryDir m_home;
    std::unique_ptr<SettingsController> m_settings;
    std::unique_ptr<QSettings> m_raw;
};

QStringList ids(int count) {
    QStringList list;
    for (int i = 0; i < count; ++i) {
        list.append(QString::number(100'000'000 + i));
    }
    return list;
}

TEST_F(SettingsControllerTest, AFreshStoreAnswersWithDefaults) {
    const SettingsController& fresh = *m_settings;
    for (const QString& text : {fresh.language(), fresh.clientId(), fresh.deviceSecret(),
                                fresh.sessionPassword(), fresh.wakeOnLanAddress(ids(1).first())}) {
        EXPECT_TRUE(text.isEmpty());
    }
    EXPECT_EQ(fresh.displayMode(), 1);
    EXPECT_EQ(fresh.monitorIndex(), 0);
    EXPECT_EQ(fresh.maxReconnectAttempts(), 10);
    EXPECT_TRUE(fresh.clipboardSharing());
    EXPECT_TRUE(fresh.autoReconnect());
    EXPECT_TRUE(fresh.minimizeToTray());
    EXPECT_TRUE(fresh.favorites().isEmpty());
    EXPECT_TRUE(fresh.recentPartners().isEmpty());
    EXPECT_FALSE(fresh.hasCredentials());
    EXPECT_EQ(fresh.encoderSpeed(), QStringLiteral("8"));
    EXPECT_TRUE(fresh.serverBaseUrl().isValid());
}

TEST_F(SettingsControllerTest, EverySetterWritesItsKeyAndItsGetterReadsIt) {
    using Text = QString;
    const struct {
        const char* key;
        void (SettingsController::*set)(const Text&);
        Text (SettingsController::*get)() const;
    } texts[] = {
        {"general/language", &SettingsController::setLanguage, &SettingsController::language},
        {"auth/clientId", &SettingsController::setClientId, &SettingsController::clientId},
        {"auth/deviceSecret", &SettingsController::setDeviceSecret,
         &SettingsController::deviceSecret},
        {"auth/sessionPassword", &SettingsController::setSessionPassword,
         &SettingsController::sessionPassword},
    };
    for (const auto& text : texts) {
        (*m_settings.*text.set)(QStringLiteral("väl,ue 1"));
        EXPECT_EQ(m_raw->value(QLatin1String(text.key)), QStringLiteral("väl,ue 1")) << text.key;
        EXPECT_EQ((*m_settings.*text.get)(), QStringLiteral("väl,ue 1")) << text.key;
    }
    const struct {
        const char* key;
        void (SettingsController::*set)(int);
        int (SettingsController::*get)() const;
    } numbers[] = {
        {"display/mode", &SettingsController::setDisplayMode, &SettingsController::displayMode},
        {"display/monitorIndex", &SettingsController::setMonitorIndex,
         &SettingsController::monitorIndex},
        {"network/maxReconnectAttempts", &SettingsController::setMaxReconnectAttempts,
         &SettingsController::maxReconnectAttempts},
    };
    for (const auto& number : numbers) {
        (*m_settings.*number.set)(7);
        EXPECT_EQ(m_raw->value(QLatin1String(number.key)), 7) << number.key;
        EXPECT_EQ((*m_settings.*number.get)(), 7) << number.key;
        m_raw->setValue(QLatin1String(number.key), QStringLiteral("many"));
        EXPECT_EQ((*m_settings.*number.get)(), 0) << number.key;
    }
    const struct {
        const char* key;
        void (SettingsController::*set)(bool);
        bool (SettingsController::*get)() const;
    } switches[] = {
        {"display/clipboardSharing", &SettingsController::setClipboardSharing,
         &SettingsController::clipboardSharing},
        {"network/autoReconnect", &SettingsController::setAutoReconnect,
         &SettingsController::autoReconnect},
        {"advanced/minimizeToTray", &SettingsController::setMinimizeToTray,
         &SettingsController::minimizeToTray},
    };
    for (const auto& item : switches) {
        (*m_settings.*item.set)(false);
        EXPECT_EQ(m_raw->value(QLatin1String(item.key)), false) << item.key;
        EXPECT_FALSE((*m_settings.*item.get)()) << item.key;
    }
    m_settings->setWakeOnLanAddress(QStringLiteral("123456789"), QStringLiteral("00:11"));
    EXPECT_EQ(m_raw->value(QStringLiteral("wol/123456789")), QStringLiteral("00:11"));
    EXPECT_EQ(m_settings->wakeOnLanAddress(QStringLiteral("123 456 789")), QStringLiteral("00:11"));
}

TEST_F(SettingsControllerTest, CredentialsNeedBothHalves) {
    m_settings->setClientId(QStringLiteral("123456789"));
    EXPECT_FALSE(m_settings->hasCredentials());
    m_settings->setDeviceSecret(QStringLiteral("secret"));
    EXPECT_TRUE(m_settings->hasCredentials());
    m_settings->setClientId(QString());
    EXPECT_FALSE(m_settings->hasCredentials());
}

TEST_F(SettingsControllerTest, DisplayModeDecidesRateAndQuality) {
    const struct {
        int mode, frameRate, quality;
    } modes[] = {{0, 24, 23}, {1, 10, 45}, {2, 10, 45}, {-1, 10, 45}};
    for (const auto& expected : modes) {
        m_settings->setDisplayMode(expected.mode);
        EXPECT_EQ(m_settings->captureFrameRate(), expected.frameRate) << expected.mode;
        EXPECT_EQ(m_settings->encoderQuality(), expected.quality) << expected.mode;
    }
}

TEST_F(SettingsControllerTest, FavoritesKeepTheirOrderAndTheOldestTwenty) {
    const QStringList all = ids(21);
    for (const QString& id : all) {
        m_settings->addFavorite(id);
    }
    QStringList kept = all.mid(0, 20);
    EXPECT_EQ(m_settings->favorites(), kept);
    m_settings->addFavorite(QStringLiteral("100 000 003"));
    m_settings->addFavorite(QStringLiteral("   "));
    EXPECT_EQ(m_settings->favorites(), kept);

    m_raw->setValue(QStringLiteral("favorites/partnerIds"), kept + QStringList{kept.at(3)});
    m_settings->removeFavorite(QStringLiteral("100 000 003"));
    kept.removeAt(3);
    EXPECT_EQ(m_settings->favorites(), kept);
    m_settings->removeFavorite(QStringLiteral(" "));
    EXPECT_EQ(m_settings->favorites(), kept);
    m_settings->addFavorite(all.at(20));
    EXPECT_EQ(m_settings->favorites(), kept + QStringList{all.at(20)});
}

TEST_F(SettingsControllerTest, RecentPartnersAreTheNewestTenWithoutDuplicates) {
    const QStringList all = ids(11);
    for (const QString& id : all) {
        m_settings->addRecentPartner(id);
    }
    QStringList expected(all.rbegin(), all.rend() - 1);
    EXPECT_EQ(m_settings->recentPartners(), expected);
    m_settings->addRecentPartner(QStringLiteral(" 100 000 005"));
    expected.removeOne(all.at(5));
    expected.prepend(all.at(5));
    EXPECT_EQ(m_settings->recentPartners(), expected);
    m_settings->addRecentPartner(QStringLiteral("  "));
    EXPECT_EQ(m_settings->recentPartners(), expected);
}

} // namespace
} // namespace corvane
