#include "network/server/HttpFetch.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <utility>

namespace corvane {

namespace {

constexpr int kMaxRedirects = 5;
constexpr qint64 kReadBufferBytes = 1024 * 1024;

bool isSecure(const QUrl& url) {
    return url.scheme() == QStringLiteral("https");
}

bool isHttp(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (isSecure(url) || url.scheme() == QStringLiteral("http"));
}

} // namespace

HttpFetch::HttpFetch(QNetworkAccessManager& network, const QUrl& url, qint64 maxBytes,
                     QObject* parent, std::chrono::milliseconds inactivityTimeout)
    : QObject(parent), m_network(network), m_maxBytes(maxBytes),
      m_inactivityTimeout(inactivityTimeout) {
    if (isHttp(url)) {
        send(url);
        return;
    }
    const QString error = tr("Not an HTTP or HTTPS address: %1").arg(url.toDisplayString());
    QMetaObject::invokeMethod(
        this, [this, error] { end(error); }, Qt::QueuedConnection);
}

QByteArray HttpFetch::take() {
    return std::exchange(m_body, QByteArray());
}

void HttpFetch::giveUp(const QString& error) {
    m_error = error;
    m_reply->abort();
}

void HttpFetch::send(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setTransferTimeout(static_cast<int>(m_inactivityTimeout.count()));
    m_receivedBytes = 0;
    m_reply = m_network.get(request);
    m_reply->setReadBufferSize(kReadBufferBytes);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpFetch::onReadable);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &HttpFetch::onProgress);
    connect(m_reply, &QNetworkReply::finished, this, &HttpFetch::onReplyFinished);
}

bool HttpFetch::isAnswer() const {
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return status >= 200 && status < 300;
}

void HttpFetch::onReadable() {
    const QByteArray part = m_reply->readAll();
    m_receivedBytes += part.size();
    if (m_receivedBytes > m_maxBytes) {
        giveUpOnSize();
    } else if (isAnswer() && !part.isEmpty()) {
        m_body += part;
        Q_EMIT arrived();
    }
}

void HttpFetch::onProgress(qint64 receivedBytes, qint64 totalBytes) {
    if (!isAnswer() || !m_error.isEmpty()) {
        return;
    }
    if (totalBytes > m_maxBytes) {
        giveUpOnSize();
    } else {
        Q_EMIT progress(receivedBytes, totalBytes);
    }
}

void HttpFetch::giveUpOnSize() {
    m_tooLarge = true;
    giveUp(tr("The server sends more than %1 bytes.").arg(m_maxBytes));
}

void HttpFetch::onReplyFinished() {
    if (m_error.isEmpty() && m_reply->isOpen()) {
        onReadable();
    }
    m_reply->deleteLater();
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!m_error.isEmpty()) {
        end(m_error);
    } else if (m_reply->error() != QNetworkReply::NoError) {
        end(m_reply->errorString());
    } else if (!target.isEmpty()) {
        follow(m_reply->url().resolved(target));
    } else if (!isAnswer()) {
        end(tr("The server has nothing to download there."));
    } else {
        end(QString());
    }
}

void HttpFetch::follow(const QUrl& target) {
    if (++m_redirects > kMaxRedirects) {
        end(tr("The server redirects too often."));
    } else if (!isHttp(target) || (isSecure(m_reply->url()) && !isSecure(target))) {
        end(tr("The server redirects to an address that is not safe to follow: %1")
                .arg(target.toDisplayString()));
    } else {
        send(target);
    }
}

void HttpFetch::end(const QString& error) {
    if (!error.isEmpty()) {
        m_body.clear();
    }
    deleteLater();
    Q_EMIT finished(error);
}

} // namespace corvane
