#include "SettingsController.h"
#include "ScratchSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <gtest/gtest.h>

#include <list>
#include <memory>

namespace corvane {
namespace {

/// The settings store and a second view of the same values, in a folder of their own.
class SettingsControllerTest : public testing::Test {
protected:
    SettingsControllerTest() {
        m_settings = std::make_unique<SettingsController>();
        m_raw = openRaw();
    }

    static std::unique_ptr<QSettings> openRaw() {
        return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                           QStringLiteral("Corvane"),
                                           QStringLiteral("CorvaneClient"));
    }

    const test::ScratchSettings m_place;
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
    using Store = SettingsController;
    const auto check = [this](const char* key, auto set, auto get, const auto& value) {
        (*m_settings.*set)(value);
        EXPECT_EQ(m_raw->value(QLatin1String(key)), QVariant(value)) << key;
        EXPECT_EQ((*m_settings.*get)(), value) << key;
    };
    const QString text = QStringLiteral("väl,ue 1");
    check("general/language", &Store::setLanguage, &Store::language, text);
    check("auth/clientId", &Store::setClientId, &Store::clientId, text);
    check("auth/deviceSecret", &Store::setDeviceSecret, &Store::deviceSecret, text);
    check("auth/sessionPassword", &Store::setSessionPassword, &Store::sessionPassword, text);
    check("display/mode", &Store::setDisplayMode, &Store::displayMode, 7);
    check("display/monitorIndex", &Store::setMonitorIndex, &Store::monitorIndex, 7);
    check("network/maxReconnectAttempts", &Store::setMaxReconnectAttempts,
          &Store::maxReconnectAttempts, 7);
    check("display/clipboardSharing", &Store::setClipboardSharing, &Store::clipboardSharing, false);
    check("network/autoReconnect", &Store::setAutoReconnect, &Store::autoReconnect, false);
    check("advanced/minimizeToTray", &Store::setMinimizeToTray, &Store::minimizeToTray, false);
    m_raw->setValue(QStringLiteral("display/mode"), QStringLiteral("many"));
    EXPECT_EQ(m_settings->displayMode(), 0);
    m_settings->setWakeOnLanAddress(QStringLiteral("123456789"), QStringLiteral("00:11"));
    EXPECT_EQ(m_raw->value(QStringLiteral("wol/123456789")), QStringLiteral("00:11"));
    EXPECT_EQ(m_settings->wakeOnLanAddress(QStringLiteral("123 456 789")), QStringLiteral("00:11"));
}

TEST_F(SettingsControllerTest, TheLanguageOutlivesTheProgram) {
    std::list<test::ScratchSettings> places;
    for (const QString& language : {QStringLiteral("de"), QStringLiteral("hu")}) {
        m_settings->setLanguage(language);
        const QString written = m_raw->fileName();
        m_settings.reset();
        if (!QFile::exists(written)) {
            GTEST_SKIP() << "no settings file on this system";
        }
        // This process would not read a file again that it wrote itself, but a copy.
        places.emplace_back();
        m_raw = openRaw();
        QDir().mkpath(QFileInfo(m_raw->fileName()).path());
        ASSERT_TRUE(QFile::copy(written, m_raw->fileName()));
        m_settings = std::make_unique<SettingsController>();
        EXPECT_EQ(m_settings->language(), language);
    }
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
