#pragma once

#include "network/server/HttpLimits.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

#include <chrono>

class QNetworkAccessManager;
class QNetworkReply;

namespace corvane {

/// One GET over HTTP or HTTPS with a maximum size and an inactivity timeout. Follows up to five
/// redirects, only to HTTP and HTTPS, and never from HTTPS to HTTP. Deletes itself after
/// `finished`. Main thread only.
class HttpFetch : public QObject {
    Q_OBJECT

public:
    /// Sends the request; the signals come later. `network` must outlive the fetch.
    HttpFetch(QNetworkAccessManager& network, const QUrl& url, qint64 maxBytes, QObject* parent,
              std::chrono::milliseconds inactivityTimeout = kMaxServerSilence);

    /// The part of the body received since the last call. Empty for error pages and after a
    /// failure.
    QByteArray take();

    /// Whether the fetch failed because the body exceeds `maxBytes`.
    bool isTooLarge() const { return m_tooLarge; }

    /// Aborts the fetch, which then emits `finished(error)`. `error` must not be empty.
    void giveUp(const QString& error);

Q_SIGNALS:
    /// `totalBytes` is -1 while unknown.
    void progress(qint64 receivedBytes, qint64 totalBytes);

    /// `take` has something to return.
    void arrived();

    /// Emitted once. `error` is empty if the whole body has arrived.
    void finished(QString error);

private:
    void send(const QUrl& url);
    void onReadable();
    void onProgress(qint64 receivedBytes, qint64 totalBytes);
    void onReplyFinished();
    void follow(const QUrl& target);
    void giveUpOnSize();
    void end(const QString& error);
    bool isAnswer() const;

    QNetworkAccessManager& m_network;
    qint64 m_maxBytes;
    std::chrono::milliseconds m_inactivityTimeout;
    QNetworkReply* m_reply = nullptr;
    int m_redirects = 0;
    qint64 m_receivedBytes = 0;
    QByteArray m_body;
    QString m_error;
    bool m_tooLarge = false;
};

} // namespace corvane
