#include "app/settings/SettingsController.h"
#include "ScratchSettings.h"

#include <QSettings>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// The settings store and a second view of the same values, in a folder of their own.
class SettingsControllerTest : public testing::Test {
protected:
    const test::ScratchSettings m_place;
    SettingsController m_settings;
    QSettings m_raw{QSettings::NativeFormat, QSettings::UserScope, u"Corvane"_s,
                    u"CorvaneClient"_s};
};

QStringList ids(int count) {
    QStringList list;
    for (int i = 0; i < count; ++i) {
        list.append(QString::number(100'000'000 + i));
    }
    return list;
}

TEST_F(SettingsControllerTest, ValuesWithoutAnInputHaveTheirKeys) {
    m_settings.setClientId(u"väl,ue 1"_s);
    EXPECT_FALSE(m_settings.hasCredentials());
    m_settings.setDeviceSecret(u"secret"_s);
    EXPECT_TRUE(m_settings.hasCredentials());
    m_settings.setSessionPassword(u"Password1"_s);
    m_settings.setWakeOnLanAddress(u"123456789"_s, u"00:11"_s);
    EXPECT_EQ(m_settings.wakeOnLanAddress(u"123 456 789"_s), u"00:11"_s);
    for (const auto& [key, value] : {std::pair{u"auth/clientId"_s, u"väl,ue 1"_s},
                                     {u"auth/deviceSecret"_s, u"secret"_s},
                                     {u"auth/sessionPassword"_s, u"Password1"_s},
                                     {u"wol/123456789"_s, u"00:11"_s}}) {
        EXPECT_EQ(m_raw.value(key), value) << key.toStdString();
    }
}

TEST_F(SettingsControllerTest, DisplayModeDecidesRateAndQuality) {
    const int modes[][4] = {{0, 24, 30, 23}, {1, 10, 30, 45}, {2, 30, 60, 45}, {-1, 10, 30, 45}};
    for (const auto& [mode, frameRate, withInput, quality] : modes) {
        m_settings.setDisplayMode(mode);
        EXPECT_EQ(m_settings.captureFrameRate(), frameRate) << mode;
        EXPECT_EQ(m_settings.frameRateWithInput(), withInput) << mode;
        EXPECT_EQ(m_settings.encoderQuality(), quality) << mode;
    }
}

TEST_F(SettingsControllerTest, FavoritesKeepTheirOrderAndTheOldestTwenty) {
    const QStringList all = ids(21);
    for (const QString& id : all + QStringList{u"100 000 003"_s, u"   "_s}) {
        m_settings.addFavorite(id);
    }
    QStringList kept = all.mid(0, 20);
    EXPECT_EQ(m_settings.favorites(), kept);
    m_raw.setValue(u"favorites/partnerIds"_s, kept + QStringList{kept.at(3)});
    for (const QString& id : {u"100 000 003"_s, u" "_s}) {
        m_settings.removeFavorite(id);
    }
    kept.removeAt(3);
    EXPECT_EQ(m_settings.favorites(), kept);
    m_settings.addFavorite(all.at(20));
    EXPECT_EQ(m_settings.favorites(), kept + QStringList{all.at(20)});
}

TEST_F(SettingsControllerTest, RecentPartnersAreTheNewestTenWithoutDuplicates) {
    const QStringList all = ids(11);
    for (const QString& id : all + QStringList{u" 100 000 005"_s, u"  "_s}) {
        m_settings.addRecentPartner(id);
    }
    QStringList expected(all.rbegin(), all.rend() - 1);
    expected.move(expected.indexOf(all.at(5)), 0);
    EXPECT_EQ(m_settings.recentPartners(), expected);
    EXPECT_EQ(m_raw.value(u"history/recentPartnerIds"_s), expected);
}

} // namespace
} // namespace corvane
