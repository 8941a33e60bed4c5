#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QUrl>

namespace corvane::test {

/// Answers the first bytes of every connection with fixed bytes and closes it; with no bytes to
/// answer it stays silent and keeps the connection open. For answers that no proper server gives.
class CannedServer {
public:
    explicit CannedServer(const QByteArray& answer = {});

    QUrl url() const;
    int connections() const { return m_connections; }

private:
    QTcpServer m_server;
    int m_connections = 0;
};

/// A base URL at which nobody listens.
QUrl deafUrl();

} // namespace corvane::test
