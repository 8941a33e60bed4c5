#include "network/identity/AuthController.h"
#include "ScratchSettings.h"
#include "app/settings/SettingsController.h"
#include "network/DevServerTest.h"
#include "network/identity/MachineFingerprint.h"
#include "network/reachability/HeartbeatService.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalingClient.h"
#include "support/MatchesPattern.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QSysInfo>

#include <algorithm>
#include <memory>

namespace corvane {
namespace {

using test::eventually;
using namespace Qt::StringLiterals;

/// The objects of one program run.
struct ProgramRun {
    ProgramRun(const QUrl& server, AuthIntervals intervals)
        : auth(&api, &signaling, &heartbeat, &settings, nullptr, intervals) {
        api.setServerUrl(server);
    }

    SettingsController settings;
    ApiClient api;
    SignalingClient signaling;
    HeartbeatService heartbeat{&api, nullptr, {.publicAddressUrl = {}, .natProbe = {u""_s}}};
    AuthController auth;
};

class AuthControllerTest : public test::DevServerTest {
protected:
    AuthControllerTest() { newRun(); }

    void newRun() {
        m_run.reset();
        m_run = std::make_unique<ProgramRun>(m_server.url(), m_intervals);
    }

    AuthController& auth() { return m_run->auth; }
    SettingsController& settings() { return m_run->settings; }

    bool authenticates() {
        auth().start();
        return eventually([this] { return auth().isAuthenticated(); });
    }

    void storeCredentials() {
        settings().setClientId(u"111111111"_s);
        settings().setDeviceSecret(u"stale"_s);
    }

    bool serverWasSent(const QString& field, const QString& text) {
        const auto messages = m_server.signalingMessages(settings().clientId());
        return std::any_of(messages.begin(), messages.end(),
                           [&](const QJsonObject& message) { return message[field] == text; });
    }

    /// Waits until this device has sent the field "password" or "code" with that text.
    bool serverGets(const QString& field, const QString& text) {
        return eventually([&] { return serverWasSent(field, text); });
    }

    QStringList authRequests() const {
        QStringList paths;
        for (const auto& request : m_server.requests()) {
            if (request.path.startsWith(u"/auth/")) {
                paths.append(request.path);
            }
        }
        return paths;
    }

    const test::ScratchSettings m_place;
    AuthIntervals m_intervals{.retry = std::chrono::milliseconds(1)};
    std::unique_ptr<ProgramRun> m_run;
};

const QString kLogin = u"/auth/auto-login"_s;
const QString kRegistration = u"/auth/auto-register"_s;

TEST_F(AuthControllerTest, TheFirstStartRegistersAndLaterOnesLogIn) {
    QSignalSpy authenticated(&auth(), &AuthController::authenticated);
    QObject::connect(&auth(), &AuthController::authenticated, [this] {
        EXPECT_EQ(m_log.lines().back(), "info|Heartbeat service started (interval: 30000 ms)");
    });
    ASSERT_TRUE(authenticates());
    const QString clientId = settings().clientId();
    EXPECT_EQ(authenticated.value(0).value(0), clientId);
    QJsonObject registration{{u"client_name"_s, QSysInfo::machineHostName()},
                             {u"agent_version"_s, u"1.32"_s}};
    // A container may have no identity of its own.
    if (const QString fingerprint = MachineFingerprint::generate(); !fingerprint.isEmpty()) {
        registration.insert(u"machine_fingerprint"_s, fingerprint);
    }
    EXPECT_EQ(QJsonDocument::fromJson(m_server.requests().constFirst().body).object(),
              registration);
    EXPECT_TRUE(serverGets(u"password"_s, auth().sessionPassword()));
    EXPECT_TRUE(serverGets(u"code"_s, auth().pairingCode()));
    const QStringList secrets{settings().deviceSecret(), m_run->api.token(),
                              auth().sessionPassword(), auth().pairingCode()};

    newRun();
    ASSERT_TRUE(authenticates());
    EXPECT_EQ(settings().clientId(), clientId);
    EXPECT_EQ(authRequests(), (QStringList{kRegistration, kLogin}));
    EXPECT_TRUE(serverGets(u"password"_s, auth().sessionPassword()));

    for (const QString& secret : secrets) {
        EXPECT_FALSE(m_log.contains(secret.toStdString()));
    }
}

TEST_F(AuthControllerTest, CredentialErrorsClearAtOnce) {
    for (const char* detail : {"invalid DEVICE credentials", "Your AUTHENTICATION has expired"}) {
        const QByteArray body = QByteArrayLiteral(R"({"detail":")") + detail + R"("})";
        m_server.misbehaviour().setReply(kLogin, {.status = 401, .body = body});
        storeCredentials();
        m_log.clear();
        QSignalSpy authenticated(&auth(), &AuthController::authenticated);
        auth().start();
        EXPECT_TRUE(authenticated.wait());
        EXPECT_TRUE(m_log.once(std::string("warning|Authentication failed (attempt 1): ") + detail +
                               ". Retrying in 20 seconds..."));
    }
    EXPECT_EQ(authRequests(), (QStringList{kLogin, kRegistration, kLogin, kRegistration}));
}

TEST_F(AuthControllerTest, OtherErrorsClearAtTheThirdFailureAndRegistrationIsRetried) {
    m_server.misbehaviour().setReply(kLogin, {.status = 500});
    m_server.misbehaviour().setReply(kRegistration, {.status = 503});
    storeCredentials();
    QStringList idsAtFailure;
    QObject::connect(&auth(), &AuthController::authenticationFailed,
                     [&] { idsAtFailure.append(settings().clientId()); });
    auth().start();
    ASSERT_TRUE(eventually([&] { return m_server.requests().size() >= 6; }));
    EXPECT_EQ(idsAtFailure.mid(0, 3), (QStringList{u"111111111"_s, u"111111111"_s, QString()}));
    EXPECT_EQ(authRequests().mid(0, 5),
              (QStringList{kLogin, kLogin, kLogin, kRegistration, kRegistration}));
    EXPECT_FALSE(auth().isAuthenticated());
    m_server.misbehaviour().clear();
    EXPECT_TRUE(eventually([this] { return auth().isAuthenticated(); }));
}

TEST_F(AuthControllerTest, APasswordIsStoredPublishedAndUsedAgainIfItMeetsThePolicy) {
    settings().setSessionPassword(u"abcdefg1"_s);
    newRun();
    EXPECT_THAT(auth().sessionPassword().toStdString(), test::MatchesPattern("[a-z0-9]{6}"));
    EXPECT_EQ(settings().sessionPassword(), u"abcdefg1"_s) << "the generated one is not stored";

    auth().setSessionPassword(u"Offline1"_s);
    newRun();
    ASSERT_TRUE(authenticates());
    EXPECT_TRUE(serverGets(u"password"_s, u"Offline1"_s));
    auth().setSessionPassword(u"Online11"_s);
    EXPECT_TRUE(serverGets(u"password"_s, u"Online11"_s));
}

TEST_F(AuthControllerTest, ThePairingCodeChangesByItself) {
    m_intervals.pairingCode = std::chrono::milliseconds(200);
    newRun();
    ASSERT_TRUE(authenticates());
    // The code may change while the connection comes up.
    ASSERT_TRUE(eventually([this] { return serverWasSent(u"code"_s, auth().pairingCode()); }));
    QSignalSpy changed(&auth(), &AuthController::pairingCodeChanged);
    ASSERT_TRUE(changed.wait());
    const QString code = changed.constLast().at(0).toString();
    EXPECT_THAT(code.toStdString(), test::MatchesPattern("[1-9][0-9]{5}"));
    EXPECT_TRUE(serverGets(u"code"_s, code));
}

} // namespace
} // namespace corvane
