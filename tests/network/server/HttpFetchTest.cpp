#include "network/server/HttpFetch.h"
#include "network/CannedServer.h"

#include <QNetworkAccessManager>
#include <QTest>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

/// The body, or "error: text".
std::string fetched(const QUrl& url,
                    std::chrono::milliseconds inactivityTimeout = std::chrono::seconds(20)) {
    constexpr qint64 kMaxBytes = 10;
    QNetworkAccessManager network;
    QObject owner;
    auto* const fetch = new HttpFetch(network, url, kMaxBytes, &owner, inactivityTimeout);
    std::string outcome;
    QObject::connect(fetch, &HttpFetch::finished, [&](const QString& error) {
        const QByteArray body = fetch->take();
        outcome = error.isEmpty() ? body.toStdString() : "error: " + error.toStdString();
        EXPECT_TRUE(error.isEmpty() || body.isEmpty());
    });
    EXPECT_EQ(outcome, "") << "never in the constructor";
    EXPECT_TRUE(QTest::qWaitFor([&] { return owner.children().isEmpty(); }, 20'000))
        << "deletes itself";
    return outcome;
}

std::string fetchedFrom(const QByteArray& answer) {
    return fetched(test::CannedServer(answer).url());
}

QByteArray redirect(const QByteArray& location) {
    return "HTTP/1.1 302 Found\r\nContent-Length: 4\r\nLocation: " + location + "\r\n\r\nbody";
}

TEST(HttpFetch, IsBoundedAndTakesNothingButAWholeAnswer) {
    const QByteArray ok = "HTTP/1.1 200 OK\r\n";
    EXPECT_EQ(fetchedFrom(ok + "Content-Length: 10\r\n\r\n0123456789"), "0123456789");
    EXPECT_EQ(fetchedFrom(ok + "\r\n0123456789"), "0123456789");
    EXPECT_EQ(fetchedFrom(ok + "Content-Length: 0\r\n\r\n"), "");
    const std::string tooLarge = "error: The server sends more than 10 bytes.";
    EXPECT_EQ(fetchedFrom(ok + "Content-Length: 11\r\n\r\n01234567890"), tooLarge);
    EXPECT_EQ(fetchedFrom(ok + "Content-Length: 9223372036854775807\r\n\r\n0"), tooLarge);
    EXPECT_EQ(fetchedFrom(ok + "\r\n01234567890"), tooLarge);
    EXPECT_EQ(fetchedFrom("HTTP/1.1 404 Gone\r\n\r\n" + QByteArray(5'000'000, 'x')), tooLarge);
    EXPECT_EQ(fetchedFrom(ok + "Content-Length: 5\r\n\r\n0123"), "error: Connection closed");
    const test::CannedServer silent;
    EXPECT_EQ(fetched(silent.url(), std::chrono::milliseconds(50)), "error: Operation canceled");
    EXPECT_EQ(fetchedFrom("HTTP/1.1 300 Choices\r\nContent-Length: 4\r\n\r\nbody"),
              "error: The server has nothing to download there.");
    EXPECT_EQ(fetched(test::deafUrl()), "error: Connection refused");
}

TEST(HttpFetch, FollowsAFewRedirectsToHttpOnly) {
    std::vector<std::unique_ptr<test::CannedServer>> servers;
    servers.push_back(std::make_unique<test::CannedServer>("HTTP/1.1 200 OK\r\n\r\nfound"));
    for (int hops = 1; hops <= 6; ++hops) {
        servers.push_back(
            std::make_unique<test::CannedServer>(redirect(servers.back()->url().toEncoded())));
        EXPECT_EQ(fetched(servers.back()->url()),
                  hops <= 5 ? "found" : "error: The server redirects too often.");
    }
    EXPECT_EQ(fetchedFrom(redirect("/again")), "error: The server redirects too often.");

    for (const std::string elsewhere :
         {"file:///etc/passwd", "ftp://127.0.0.1/file", "data:,text", "http:///file"}) {
        EXPECT_EQ(fetchedFrom(redirect(QByteArray::fromStdString(elsewhere))),
                  "error: The server redirects to an address that is not safe to follow: " +
                      elsewhere);
        EXPECT_EQ(fetched(QUrl(QString::fromStdString(elsewhere))),
                  "error: Not an HTTP or HTTPS address: " + elsewhere);
    }
    EXPECT_EQ(fetched(QUrl()), "error: Not an HTTP or HTTPS address: ");
}

} // namespace
} // namespace corvane
