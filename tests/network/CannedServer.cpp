#include "CannedServer.h"

#include <QTcpSocket>

namespace corvane::test {

CannedServer::CannedServer(const QByteArray& answer) {
    m_server.listen(QHostAddress::LocalHost);
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this, answer] {
        ++m_connections;
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

QUrl CannedServer::url() const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort()));
}

QUrl deafUrl() {
    return CannedServer().url();
}

} // namespace corvane::test
