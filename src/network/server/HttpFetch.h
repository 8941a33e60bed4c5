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

/// One GET over HTTP or HTTPS that stays within bounds: of size, of silence (the server's longest
/// pause), and of redirects, of which it follows five, to HTTP and HTTPS only and never back from
/// HTTPS to HTTP. Deletes itself when it has reported its end. Main thread only.
class HttpFetch : public QObject {
    Q_OBJECT

public:
    /// Sends the request; the signals come later. `network` must outlive the fetch.
    HttpFetch(QNetworkAccessManager& network, const QUrl& url, qint64 maxBytes, QObject* parent,
              std::chrono::milliseconds inactivityTimeout = kMaxServerSilence);

    /// What has arrived of the body since the last call; nothing of an error page, and nothing more
    /// after a failure.
    QByteArray take();

    /// Whether the end came because there was more than `maxBytes`.
    bool isTooLarge() const { return m_tooLarge; }

    /// Ends the fetch now, with `finished(error)`. `error` is not empty.
    void giveUp(const QString& error);

Q_SIGNALS:
    /// `totalBytes` is -1 while the server has not told it.
    void progress(qint64 receivedBytes, qint64 totalBytes);

    /// There is something to take.
    void arrived();

    /// The end. `error` is empty when the whole body has arrived.
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
