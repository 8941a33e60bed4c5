#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace corvane::test {

/// Answers the first bytes of every connection with fixed bytes and closes it; with no bytes to
/// answer it stays silent and keeps the connection open. For answers that no proper server gives.
class CannedServer {
public:
    explicit CannedServer(const QByteArray& answer = {}) {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this, answer] {
            QTcpSocket* socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, answer] {
                socket->readAll();
                if (!answer.isEmpty()) {
                    socket->write(answer);
                    socket->disconnectFromHost();
                }
            });
        });
    }

    QUrl url() const {
        return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort()));
    }

private:
    QTcpServer m_server;
};

/// A base URL at which nobody listens.
inline QUrl deafUrl() {
    return CannedServer().url();
}

} // namespace corvane::test
