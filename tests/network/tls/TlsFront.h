#pragma once

#include "network/tls/CertificateAuthority.h"

#include <QTcpServer>
#include <QUrl>

#include <memory>

class QTcpSocket;
struct ssl_ctx_st;

namespace corvane::test {

/// Gives a server that talks in the clear a TLS entrance on localhost. Not made of Qt's TLS, which
/// has no servers on every system.
class TlsFront {
public:
    TlsFront(const Identity& identity, const QUrl& behind);

    QUrl url() const;

    /// What has come over all connections so far, deciphered.
    QByteArray received() const { return m_received; }

private:
    void join(QTcpSocket& outside, const QUrl& behind);

    std::shared_ptr<ssl_ctx_st> m_context;
    QTcpServer m_server;
    QByteArray m_received;
};

} // namespace corvane::test
