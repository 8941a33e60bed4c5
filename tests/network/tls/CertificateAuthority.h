#pragma once

#include <QSslCertificate>
#include <QSslConfiguration>

#include <chrono>
#include <memory>

struct evp_pkey_st;
struct x509_st;

namespace corvane::test {

/// What a server shows and proves itself with. Self-signed ones have no issuer.
struct Identity {
    std::shared_ptr<x509_st> certificate;
    std::shared_ptr<evp_pkey_st> key;
    std::shared_ptr<x509_st> issuer = nullptr;
};

/// Makes certificates for servers, with keys that no other process has.
class CertificateAuthority {
public:
    CertificateAuthority();

    QSslCertificate certificate() const;

    /// `expiry`: from now; the certificate is valid from an hour before it, or before now.
    Identity issue(const char* host, std::chrono::seconds expiry = std::chrono::hours(1)) const;

    /// Signed with its own key.
    static Identity selfSigned(const char* host);

private:
    Identity m_identity;
};

/// While it lives, the process trusts this authority and no other.
class TrustInOne {
public:
    explicit TrustInOne(const CertificateAuthority& authority) {
        QSslConfiguration configuration = m_previous;
        configuration.setCaCertificates({authority.certificate()});
        QSslConfiguration::setDefaultConfiguration(configuration);
    }
    ~TrustInOne() { QSslConfiguration::setDefaultConfiguration(m_previous); }
    TrustInOne(const TrustInOne&) = delete;
    TrustInOne& operator=(const TrustInOne&) = delete;

private:
    const QSslConfiguration m_previous = QSslConfiguration::defaultConfiguration();
};

} // namespace corvane::test
