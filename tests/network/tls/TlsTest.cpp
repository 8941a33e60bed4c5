#include "network/CannedServer.h"
#include "network/server/ApiClient.h"
#include "network/server/HttpFetch.h"
#include "network/server/SignalLines.h"
#include "network/server/SignalingClient.h"
#include "network/tls/CertificateAuthority.h"
#include "network/tls/TlsFront.h"
#include "network/updates/UpdateServiceTest.h"
#include "support/Eventually.h"

#include <QSslSocket>
#include <QWebSocket>
#include <QWebSocketServer>

namespace corvane {
namespace {

using test::CannedServer;
using test::eventually;
using test::httpAnswer;
using test::TlsFront;
using testing::HasSubstr;
using namespace Qt::StringLiterals;

const QByteArray kArchive(2000, 'z');

QByteArray redirect(const QUrl& target) {
    return "HTTP/1.1 307 Elsewhere\r\nContent-Length: 0\r\nLocation: " + target.toEncoded() +
           "\r\n\r\n";
}

/// A process that trusts one authority, and what the parts of the program say to servers'
/// certificates.
class Tls : public test::UpdateServiceTest {
protected:
    Tls() { m_options.unpackCommand = test::copied; }

    std::string logIn(const QUrl& server) {
        m_api.setServerUrl(server);
        m_api.autoLogin(u"123456789"_s, u"secret"_s);
        return m_apiSignals.next();
    }

    std::string closeSession(const QUrl& server) {
        m_api.setServerUrl(server);
        m_api.setToken(u"tok"_s);
        m_api.closeSession(u"s-1"_s, u"user_disconnect"_s, 7);
        return m_apiSignals.next();
    }

    std::string signal(const QUrl& server) {
        SignalingClient client;
        test::SignalLines lines(client, &SignalingClient::connected,
                                &SignalingClient::connectionError);
        client.connectToServer(server, u"123456789"_s, u"tok"_s);
        const std::string first = lines.next();
        EXPECT_TRUE(first == "connected" ||
                    eventually([&] { return m_log.contains("Reconnecting in 1000 ms"); }));
        return first;
    }

    std::string download(const QUrl& server) {
        return downloadFrom(server.toString() + u"/CorvaneSetup.zip"_s);
    }

    const test::CertificateAuthority m_authority;
    const test::TrustInOne m_trust{m_authority};
    const test::Identity m_good = m_authority.issue("localhost");
    ApiClient m_api;
    test::SignalLines m_apiSignals =
        test::SignalLines(m_api, &ApiClient::authSuccess, &ApiClient::authError,
                          &ApiClient::sessionUpdated, &ApiClient::requestError);
};

TEST_F(Tls, ATrustedServerIsTalkedTo) {
    const CannedServer api(httpAnswer(R"({"client_id":"123456789","token":"tok"})"));
    const TlsFront apiFront(m_good, api.url());
    EXPECT_EQ(logIn(apiFront.url()), "authSuccess|123456789|tok");
    EXPECT_THAT(api.received().toStdString(), HasSubstr(R"("device_secret":"secret")"));
    EXPECT_THAT(closeSession(apiFront.url()), HasSubstr(R"("session_id":"s-1")"));
    EXPECT_THAT(api.received().toStdString(), HasSubstr("Bearer tok"));

    const CannedServer archive(httpAnswer(kArchive));
    EXPECT_EQ(download(TlsFront(m_good, archive.url()).url()), "readyToInstall|" + installerPath());

    QWebSocketServer signaling({}, QWebSocketServer::NonSecureMode);
    ASSERT_TRUE(signaling.listen(QHostAddress::LocalHost));
    QObject::connect(&signaling, &QWebSocketServer::newConnection, [&signaling] {
        QWebSocket* const peer = signaling.nextPendingConnection();
        peer->setParent(&signaling);
        QObject::connect(peer, &QWebSocket::textMessageReceived, peer, [peer](const auto& text) {
            EXPECT_EQ(text, uR"({"token":"tok","type":"AUTH"})"_s);
            peer->sendTextMessage(uR"({"type":"AUTH_OK"})"_s);
        });
    });
    EXPECT_EQ(signal(TlsFront(m_good, signaling.serverUrl()).url()), "connected");
}

TEST_F(Tls, AServerThatCannotProveItsNameIsToldNothing) {
    const test::CertificateAuthority namesake;
    const bool schannel = QSslSocket::activeBackend() == u"schannel"_s;
    const std::string strangeRoot = "The root CA certificate is not trusted for this purpose";
    const struct {
        test::Identity identity;
        std::string error;
    } cases[] = {
        {m_authority.issue("localhost", std::chrono::seconds(-60)), "The certificate has expired"},
        {m_authority.issue("elsewhere.example"),
         "The host name did not match any of the valid hosts for this certificate"},
        {test::CertificateAuthority::selfSigned("localhost"),
         schannel ? strangeRoot : "The certificate is self-signed, and untrusted"},
        {namesake.issue("localhost"),
         schannel ? strangeRoot : "The signature of the certificate is invalid"},
    };
    const CannedServer eager(httpAnswer(kArchive));
    for (const auto& [identity, error] : cases) {
        const TlsFront front(identity, eager.url());
        const std::string login = front.url().toString().toStdString() + "/auth/auto-login";
        const std::string failure = "SSL handshake failed: " + error;
        m_log.clear();
        EXPECT_EQ(logIn(front.url()), "authError|Auto-login failed");
        EXPECT_TRUE(
            m_log.once(fmt::format("error|Network error on POST {}: {} (6)", login, failure)));
        EXPECT_EQ(closeSession(front.url()),
                  "requestError|/sessions/.../close|0|Session close failed");
        EXPECT_EQ(signal(front.url()), "connectionError|" + error);
        EXPECT_TRUE(m_log.once("error|WebSocket error (13): " + error));
        EXPECT_EQ(download(front.url()), "updateError|" + failure);
        EXPECT_TRUE(m_log.once("error|Update download failed: " + failure));
        EXPECT_EQ(front.received().toStdString(), "");
    }
}

TEST_F(Tls, AServerThatNeverShakesHandsIsGivenUp) {
    constexpr std::chrono::milliseconds kPatience(50);
    const CannedServer silent;
    QUrl url = silent.url();
    url.setScheme(u"https"_s);
    ApiClient api(nullptr, kPatience);
    test::SignalLines apiSignals(api, &ApiClient::authError);
    api.setServerUrl(url);
    api.autoLogin(u"123456789"_s, u"secret"_s);
    EXPECT_EQ(apiSignals.next(), "authError|Auto-login failed");
    EXPECT_TRUE(m_log.contains("/auth/auto-login: Operation canceled (5)"));

    SignalingClient signaling(nullptr, kPatience);
    signaling.connectToServer(url, u"1"_s, u"tok"_s);
    EXPECT_TRUE(eventually([&] { return m_log.contains("Reconnecting in 1000 ms"); }));
    EXPECT_TRUE(m_log.contains("the server did not answer the WebSocket handshake"));

    QNetworkAccessManager network;
    auto* const fetch = new HttpFetch(network, url, 1000, nullptr, kPatience);
    test::SignalLines fetchSignals(*fetch, &HttpFetch::finished);
    EXPECT_EQ(fetchSignals.next(), "finished|Operation canceled");
}

TEST_F(Tls, ARedirectNeverLeadsIntoTheClear) {
    const CannedServer clear(httpAnswer(kArchive));
    const CannedServer redirecting(redirect(clear.url()));
    const TlsFront front(m_good, redirecting.url());
    EXPECT_EQ(logIn(front.url()), "authError|Auto-login failed");
    EXPECT_EQ(closeSession(front.url()),
              "requestError|/sessions/.../close|307|Session close failed");
    EXPECT_THAT(signal(front.url()), testing::StartsWith("connectionError|"));
    const std::string refusal = "The server redirects to an address that is not safe to follow: " +
                                clear.url().toString().toStdString();
    EXPECT_EQ(download(front.url()), "updateError|" + refusal);
    EXPECT_TRUE(m_log.once("error|Update download failed: " + refusal));
    EXPECT_EQ(clear.received().toStdString(), "");
}

TEST_F(Tls, OnlyDownloadsFollowARedirectAndOnlyToATrustedServer) {
    const CannedServer archive(httpAnswer(kArchive));
    const TlsFront target(m_good, archive.url());
    const CannedServer redirecting(redirect(target.url()));
    const TlsFront front(m_good, redirecting.url());
    EXPECT_EQ(logIn(front.url()), "authError|Auto-login failed");
    EXPECT_EQ(closeSession(front.url()),
              "requestError|/sessions/.../close|307|Session close failed");
    EXPECT_THAT(signal(front.url()), testing::StartsWith("connectionError|"));
    EXPECT_EQ(target.received().toStdString(), "");
    EXPECT_EQ(download(front.url()), "readyToInstall|" + installerPath());

    const TlsFront impostor(m_authority.issue("elsewhere.example"), archive.url());
    const CannedServer misleading(redirect(impostor.url()));
    EXPECT_THAT(download(TlsFront(m_good, misleading.url()).url()),
                HasSubstr("The host name did not match"));
    EXPECT_EQ(impostor.received().toStdString(), "");
}

} // namespace
} // namespace corvane
