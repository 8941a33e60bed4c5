#include "network/tls/CertificateAuthority.h"

#include <openssl/evp.h>
#include <openssl/x509v3.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <string>

namespace corvane::test {

namespace {

using Key = std::shared_ptr<EVP_PKEY>;
using Certificate = std::shared_ptr<X509>;

void require(bool succeeded) {
    if (!succeeded) {
        throw std::runtime_error("OpenSSL cannot make a certificate");
    }
}

Key newKey() {
    const Key key(EVP_PKEY_Q_keygen(nullptr, nullptr, "EC", "P-256"), EVP_PKEY_free);
    require(key != nullptr);
    return key;
}

/// A certificate without extensions and issuer, not yet signed.
Certificate draft(EVP_PKEY& key, const std::string& name, std::chrono::seconds expiry) {
    Certificate certificate(X509_new(), X509_free);
    X509* const x509 = certificate.get();
    require(x509 != nullptr);
    const auto start = std::min(expiry, std::chrono::seconds(0)) - std::chrono::hours(1);
    require(X509_set_version(x509, X509_VERSION_3) == 1);
    require(ASN1_INTEGER_set_uint64(X509_get_serialNumber(x509), std::random_device()() | 1U) == 1);
    require(X509_gmtime_adj(X509_getm_notBefore(x509), static_cast<long>(start.count())));
    require(X509_gmtime_adj(X509_getm_notAfter(x509), static_cast<long>(expiry.count())));
    require(X509_set_pubkey(x509, &key) == 1);
    require(X509_NAME_add_entry_by_txt(X509_get_subject_name(x509), "CN", MBSTRING_UTF8,
                                       reinterpret_cast<const unsigned char*>(name.c_str()), -1, -1,
                                       0) == 1);
    return certificate;
}

void extend(X509& certificate, int kind, const std::string& value) {
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, kind, value.c_str()), X509_EXTENSION_free);
    require(extension && X509_add_ext(&certificate, extension.get(), -1) == 1);
}

void sign(X509& certificate, const X509& issuer, EVP_PKEY& issuerKey) {
    require(X509_set_issuer_name(&certificate, X509_get_subject_name(&issuer)) == 1);
    require(X509_sign(&certificate, &issuerKey, EVP_sha256()) > 0);
}

Identity serverDraft(const char* host, std::chrono::seconds expiry) {
    const Key key = newKey();
    const Certificate certificate = draft(*key, host, expiry);
    extend(*certificate, NID_subject_alt_name, std::string("DNS:") + host);
    extend(*certificate, NID_ext_key_usage, "serverAuth");
    return {certificate, key};
}

} // namespace

CertificateAuthority::CertificateAuthority() {
    m_identity.key = newKey();
    m_identity.certificate = draft(*m_identity.key, "Test authority", std::chrono::hours(1));
    X509& certificate = *m_identity.certificate;
    extend(certificate, NID_basic_constraints, "critical,CA:TRUE");
    extend(certificate, NID_key_usage, "critical,keyCertSign");
    sign(certificate, certificate, *m_identity.key);
}

QSslCertificate CertificateAuthority::certificate() const {
    X509* const x509 = m_identity.certificate.get();
    QByteArray der(i2d_X509(x509, nullptr), Qt::Uninitialized);
    auto* end = reinterpret_cast<unsigned char*>(der.data());
    require(i2d_X509(x509, &end) == der.size());
    return QSslCertificate(der, QSsl::Der);
}

Identity CertificateAuthority::issue(const char* host, std::chrono::seconds expiry) const {
    Identity server = serverDraft(host, expiry);
    server.issuer = m_identity.certificate;
    sign(*server.certificate, *server.issuer, *m_identity.key);
    return server;
}

Identity CertificateAuthority::selfSigned(const char* host) {
    const Identity server = serverDraft(host, std::chrono::hours(1));
    sign(*server.certificate, *server.certificate, *server.key);
    return server;
}

} // namespace corvane::test
