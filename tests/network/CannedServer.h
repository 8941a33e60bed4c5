#pragma once

#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace corvane::test {

/// Answers every request with fixed bytes and closes its connection; with no bytes to answer it
/// stays silent and keeps the connection open. For answers that no proper server gives.
class CannedServer {
public:
    explicit CannedServer(const QByteArray& answer = {}) {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this, answer] {
            QTcpSocket* socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [this, socket, answer, request = QByteArray()]() mutable {
                                 const QByteArray part = socket->readAll();
                                 m_received += part;
                                 request += part;
                                 if (!answer.isEmpty() && isWhole(request)) {
                                     socket->write(answer);
                                     socket->disconnectFromHost();
                                 }
                             });
        });
    }

    QUrl url() const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort()));
    }

    /// What has come over all connections so far.
    QByteArray received() const { return m_received; }

private:
    // Closing a connection with bytes unread would take the answer back.
    static bool isWhole(const QByteArray& request) {
        static const QRegularExpression length(QStringLiteral("\r\nContent-Length: (\\d+)"),
                                               QRegularExpression::CaseInsensitiveOption);
        const auto head = request.indexOf("\r\n\r\n");
        const auto match = length.match(QString::fromLatin1(request));
        return head >= 0 && request.size() >= head + 4 + match.captured(1).toInt();
    }

    QTcpServer m_server;
    QByteArray m_received;
};

/// A base URL at which nobody listens.
inline QUrl deafUrl() {
    return CannedServer().url();
}

} // namespace corvane::test
