#include "crypto/EcdhKeyExchange.h"

#include "crypto/AesGcmCipher.h"
#include "crypto/KeyDerivation.h"
#include "crypto/OpensslErrors.h"

#include <openssl/bio.h>
#include <openssl/buffer.h>
#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/params.h>
#include <openssl/x509.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

namespace corvane {

namespace {

constexpr size_t kAesKeySize = 32;
constexpr size_t kBaseIvSize = 12;
constexpr std::array<uint8_t, 32> kSalt{};
constexpr std::string_view kInfo = "corvane-session-key-v1";

// Four times what a P-256 key takes. OpenSSL examines a key before it notices that the algorithm is
// another one, and takes seconds over numbers of thousands of digits.
constexpr size_t kMaxTokenSize = 512;

[[noreturn]] void throwGenerationFailure(const std::string& step) {
    throw std::runtime_error("EcdhKeyExchange: " + step + " failed: " + opensslErrors());
}

OpensslPtr<EVP_PKEY> generateKeyPair() {
    const OpensslPtr<EVP_PKEY_CTX> context(EVP_PKEY_CTX_new_from_name(nullptr, "EC", nullptr));
    if (!context) {
        throwGenerationFailure("EVP_PKEY_CTX_new_from_name");
    }
    if (EVP_PKEY_keygen_init(context.get()) < 1) {
        throwGenerationFailure("EVP_PKEY_keygen_init");
    }
    char group[] = "prime256v1";
    const std::array parameters{
        OSSL_PARAM_construct_utf8_string(OSSL_PKEY_PARAM_GROUP_NAME, group, 0),
        OSSL_PARAM_construct_end(),
    };
    if (EVP_PKEY_CTX_set_params(context.get(), parameters.data()) < 1) {
        throwGenerationFailure("EVP_PKEY_CTX_set_params");
    }
    EVP_PKEY* key = nullptr;
    if (EVP_PKEY_generate(context.get(), &key) <= 0) {
        throwGenerationFailure("EVP_PKEY_generate");
    }
    return OpensslPtr<EVP_PKEY>(key);
}

// A base64 filter, without line breaks in either direction, in front of `memory`; null on failure.
OpensslPtr<BIO> base64Chain(OpensslPtr<BIO> memory) {
    OpensslPtr<BIO> filter(BIO_new(BIO_f_base64()));
    if (!filter || !memory) {
        return nullptr;
    }
    BIO_set_flags(filter.get(), BIO_FLAGS_BASE64_NO_NL);
    BIO_push(filter.get(), memory.release());
    return filter;
}

std::string encodeBase64(ByteSpan bytes) {
    const auto chain = base64Chain(OpensslPtr<BIO>(BIO_new(BIO_s_mem())));
    if (!chain) {
        return {};
    }
    BIO_write(chain.get(), bytes.data(), static_cast<int>(bytes.size()));
    BIO_flush(chain.get());
    BUF_MEM* memory = nullptr;
    BIO_get_mem_ptr(chain.get(), &memory);
    return memory != nullptr ? std::string(memory->data, memory->length) : std::string();
}

ByteVector decodeBase64(std::string_view token) {
    // Since OpenSSL 3.5 the filter skips line breaks, which no token has.
    if (token.empty() || token.size() > kMaxTokenSize ||
        token.find_first_of("\r\n") != std::string_view::npos) {
        return {};
    }
    const int length = static_cast<int>(token.size());
    const auto chain = base64Chain(OpensslPtr<BIO>(BIO_new_mem_buf(token.data(), length)));
    if (!chain) {
        return {};
    }
    ByteVector bytes(token.size());
    const int count = BIO_read(chain.get(), bytes.data(), length);
    bytes.resize(static_cast<size_t>(std::max(count, 0)));
    return bytes;
}

OpensslPtr<EVP_PKEY> importPublicKey(const std::string& token) {
    const ByteVector der = decodeBase64(token);
    if (der.empty()) {
        spdlog::error("EcdhKeyExchange::deriveSharedKey: base64 decode of peer key failed");
        return nullptr;
    }
    const unsigned char* position = der.data();
    OpensslPtr<EVP_PKEY> key(d2i_PUBKEY(nullptr, &position, static_cast<long>(der.size())));
    if (!key) {
        spdlog::error("EcdhKeyExchange::deriveSharedKey: d2i_PUBKEY failed: {}", opensslErrors());
    }
    return key;
}

} // namespace

EcdhKeyExchange::EcdhKeyExchange() : m_keyPair(generateKeyPair()) {
    spdlog::debug("EcdhKeyExchange: P-256 key pair generated");
}

std::string EcdhKeyExchange::publicKeyBase64() const {
    unsigned char* buffer = nullptr;
    const int length = i2d_PUBKEY(m_keyPair.get(), &buffer);
    const OpensslPtr<unsigned char> der(buffer);
    if (length <= 0 || !der) {
        spdlog::error("EcdhKeyExchange::publicKeyBase64: i2d_PUBKEY failed: {}", opensslErrors());
        return {};
    }
    return encodeBase64(ByteSpan(der.get(), static_cast<size_t>(length)));
}

bool EcdhKeyExchange::deriveSharedKey(const std::string& peerToken) {
    const auto peerKey = importPublicKey(peerToken);
    if (!peerKey) {
        return false;
    }
    const SecretBytes secret = ecdhSharedSecret(m_keyPair.get(), peerKey.get());
    if (secret.empty()) {
        return false;
    }
    spdlog::debug("EcdhKeyExchange: ECDH shared secret derived ({} bytes)", secret.size());
    return deriveKeyMaterial(secret);
}

bool EcdhKeyExchange::deriveKeyMaterial(const SecretBytes& sharedSecret) {
    const SecretBytes material =
        hkdfSha256(sharedSecret.span(), kSalt, kInfo, kAesKeySize + kBaseIvSize);
    if (material.empty()) {
        return false;
    }
    m_aesKey = SecretBytes(material.span().first(kAesKeySize));
    m_baseIv = SecretBytes(material.span().last(kBaseIvSize));
    m_derived = true;
    spdlog::debug("EcdhKeyExchange: AES-256-GCM key and base IV derived via HKDF-SHA256");
    return true;
}

ByteVector EcdhKeyExchange::aesKey() const {
    if (!m_derived) {
        spdlog::warn("EcdhKeyExchange::aesKey: key not yet derived");
    }
    return m_aesKey.copy();
}

ByteVector EcdhKeyExchange::baseIv() const {
    if (!m_derived) {
        spdlog::warn("EcdhKeyExchange::baseIv: IV not yet derived");
    }
    return m_baseIv.copy();
}

std::unique_ptr<AesGcmCipher> EcdhKeyExchange::createCipher() const {
    return std::make_unique<AesGcmCipher>(SecretBytes(m_aesKey.span()),
                                          SecretBytes(m_baseIv.span()));
}

} // namespace corvane
