#include "network/tls/TlsFront.h"

#include <QTcpSocket>
#include <openssl/ssl.h>

namespace corvane::test {

namespace {

/// The server's end of one TLS connection, between bytes and bytes.
class TlsEnd {
public:
    explicit TlsEnd(SSL_CTX& context) : m_ssl(SSL_new(&context), SSL_free) {
        SSL_set_bio(m_ssl.get(), BIO_new(BIO_s_mem()), BIO_new(BIO_s_mem()));
        SSL_set_accept_state(m_ssl.get());
    }

    QByteArray deciphered(const QByteArray& arrived) {
        BIO_write(SSL_get_rbio(m_ssl.get()), arrived.constData(), static_cast<int>(arrived.size()));
        return drained([this](char* part, int size) { return SSL_read(m_ssl.get(), part, size); });
    }

    void encipher(const QByteArray& text) {
        SSL_write(m_ssl.get(), text.constData(), static_cast<int>(text.size()));
    }

    void close() { SSL_shutdown(m_ssl.get()); }

    /// What the other end is to get.
    QByteArray toSend() {
        BIO* const out = SSL_get_wbio(m_ssl.get());
        return drained([out](char* part, int size) { return BIO_read(out, part, size); });
    }

private:
    template <typename Read>
    static QByteArray drained(Read read) {
        QByteArray all;
        char part[4096];
        for (int size = 0; (size = read(part, sizeof part)) > 0;) {
            all.append(part, size);
        }
        return all;
    }

    std::unique_ptr<SSL, decltype(&SSL_free)> m_ssl;
};

} // namespace

TlsFront::TlsFront(const Identity& identity, const QUrl& behind)
    : m_context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free) {
    SSL_CTX_use_certificate(m_context.get(), identity.certificate.get());
    SSL_CTX_use_PrivateKey(m_context.get(), identity.key.get());
    if (identity.issuer) {
        // Wine finds no issuer among those that only this process trusts.
        SSL_CTX_add1_chain_cert(m_context.get(), identity.issuer.get());
    }
    m_server.listen(QHostAddress::LocalHost);
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server,
                     [this, behind] { join(*m_server.nextPendingConnection(), behind); });
}

QUrl TlsFront::url() const {
    return QUrl(QStringLiteral("https://localhost:%1").arg(m_server.serverPort()));
}

void TlsFront::join(QTcpSocket& outside, const QUrl& behind) {
    auto* const inside = new QTcpSocket(&outside);
    inside->connectToHost(behind.host(), static_cast<quint16>(behind.port()));
    const auto end = std::make_shared<TlsEnd>(*m_context);
    const auto send = [&outside, end] {
        if (outside.isOpen()) {
            outside.write(end->toSend());
        }
    };
    QObject::connect(&outside, &QTcpSocket::readyRead, inside, [this, &outside, inside, end, send] {
        const QByteArray part = end->deciphered(outside.readAll());
        m_received += part;
        if (!part.isEmpty()) {
            inside->write(part);
        }
        send();
    });
    QObject::connect(inside, &QTcpSocket::readyRead, inside, [inside, end, send] {
        end->encipher(inside->readAll());
        send();
    });
    QObject::connect(inside, &QTcpSocket::disconnected, inside, [&outside, end, send] {
        end->close();
        send();
        outside.disconnectFromHost();
    });
    QObject::connect(&outside, &QTcpSocket::disconnected, inside, &QTcpSocket::disconnectFromHost);
}

} // namespace corvane::test
