#include "crypto/KeyDerivation.h"

#include "crypto/OpensslErrors.h"
#include "crypto/OpensslHandles.h"

#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/kdf.h>
#include <openssl/params.h>
#include <spdlog/spdlog.h>

#include <array>

namespace corvane {

namespace {

SecretBytes sharedSecretFailure(std::string_view step) {
    spdlog::error("EcdhKeyExchange::deriveSharedKey: {} failed: {}", step, opensslErrors());
    return SecretBytes();
}

// The parameter list's type has no const, but derivation only reads. A null pointer is refused even
// for an empty parameter.
OSSL_PARAM octets(const char* key, const void* data, size_t size) {
    const void* start = size > 0 ? data : "";
    return OSSL_PARAM_construct_octet_string(key, const_cast<void*>(start), size);
}

} // namespace

SecretBytes ecdhSharedSecret(evp_pkey_st* ownKey, evp_pkey_st* peerKey) {
    const OpensslPtr<EVP_PKEY_CTX> context(EVP_PKEY_CTX_new(ownKey, nullptr));
    if (!context) {
        return sharedSecretFailure("EVP_PKEY_CTX_new");
    }
    if (EVP_PKEY_derive_init(context.get()) <= 0) {
        return sharedSecretFailure("derive_init");
    }
    if (EVP_PKEY_derive_set_peer(context.get(), peerKey) <= 0) {
        return sharedSecretFailure("derive_set_peer");
    }
    size_t length = 0;
    if (EVP_PKEY_derive(context.get(), nullptr, &length) <= 0) {
        return sharedSecretFailure("derive (size)");
    }
    SecretBytes secret(length);
    if (EVP_PKEY_derive(context.get(), secret.data(), &length) <= 0) {
        return sharedSecretFailure("derive");
    }
    secret.truncate(length);
    return secret;
}

SecretBytes hkdfSha256(ByteSpan secret, ByteSpan salt, std::string_view info, size_t length) {
    const OpensslPtr<EVP_KDF> kdf(EVP_KDF_fetch(nullptr, "HKDF", nullptr));
    if (!kdf) {
        spdlog::error("EcdhKeyExchange::deriveKeyMaterial: EVP_KDF_fetch(HKDF) failed: {}",
                      opensslErrors());
        return SecretBytes();
    }
    const OpensslPtr<EVP_KDF_CTX> context(EVP_KDF_CTX_new(kdf.get()));
    if (!context) {
        spdlog::error("EcdhKeyExchange::deriveKeyMaterial: EVP_KDF_CTX_new failed: {}",
                      opensslErrors());
        return SecretBytes();
    }
    char digest[] = "SHA256";
    const std::array parameters{
        OSSL_PARAM_construct_utf8_string(OSSL_KDF_PARAM_DIGEST, digest, 0),
        octets(OSSL_KDF_PARAM_KEY, secret.data(), secret.size()),
        octets(OSSL_KDF_PARAM_SALT, salt.data(), salt.size()),
        octets(OSSL_KDF_PARAM_INFO, info.data(), info.size()),
        OSSL_PARAM_construct_end(),
    };
    SecretBytes material(length);
    if (EVP_KDF_derive(context.get(), material.data(), material.size(), parameters.data()) <= 0) {
        spdlog::error("EcdhKeyExchange::deriveKeyMaterial: EVP_KDF_derive failed: {}",
                      opensslErrors());
        return SecretBytes();
    }
    return material;
}

} // namespace corvane
