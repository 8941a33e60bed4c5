#include "crypto/AesGcmCipher.h"

#include "crypto/OpensslErrors.h"

#include <openssl/evp.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>
#include <climits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace corvane {

namespace {

constexpr size_t kKeySize = 32;
constexpr size_t kNonceSize = 12;
constexpr size_t kCounterSize = 8;
constexpr size_t kTagSize = 16;
static_assert(AesGcmCipher::kOverhead == kCounterSize + kTagSize);

void requireSize(std::string_view name, size_t size, size_t required) {
    if (size != required) {
        throw std::invalid_argument(
            fmt::format("AesGcmCipher: {} must be exactly {} bytes, got {}", name, required, size));
    }
}

using Nonce = std::array<uint8_t, kNonceSize>;

Nonce nonceFor(const SecretBytes& baseIv, uint64_t counter) {
    Nonce nonce{};
    std::copy_n(baseIv.data(), kNonceSize, nonce.begin());
    for (size_t i = 0; i < kCounterSize; ++i) {
        nonce[i] ^= static_cast<uint8_t>(counter >> (8 * i));
    }
    return nonce;
}

void writeCounter(uint8_t* destination, uint64_t counter) {
    for (size_t i = 0; i < kCounterSize; ++i) {
        destination[i] = static_cast<uint8_t>(counter >> (8 * i));
    }
}

ByteVector failure(std::string_view operation, std::string_view step) {
    spdlog::error("AesGcmCipher::{}: {} failed: {}", operation, step, opensslErrors());
    return {};
}

ByteVector encryptFailure(std::string_view step) {
    return failure("encrypt", step);
}

ByteVector decryptFailure(std::string_view step) {
    return failure("decrypt", step);
}

} // namespace

// The algorithm is fetched once here: the implicit fetch behind EVP_aes_256_gcm() would be repeated
// for every message. Should the fetch fail, every message fails at its first initialisation.
AesGcmCipher::AesGcmCipher(const ByteVector& key, const ByteVector& baseIv)
    : AesGcmCipher(SecretBytes(ByteSpan(key)), SecretBytes(ByteSpan(baseIv))) {}

AesGcmCipher::AesGcmCipher(SecretBytes key, SecretBytes baseIv)
    : m_key(std::move(key)), m_baseIv(std::move(baseIv)) {
    requireSize("key", m_key.size(), kKeySize);
    requireSize("base IV", m_baseIv.size(), kNonceSize);
    m_algorithm.reset(EVP_CIPHER_fetch(nullptr, "AES-256-GCM", nullptr));
    spdlog::debug("AesGcmCipher: initialized with 256-bit key and 96-bit base IV");
}

ByteVector AesGcmCipher::encrypt(const ByteVector& plaintext) {
    return encrypt(plaintext.data(), plaintext.size());
}

ByteVector AesGcmCipher::encrypt(const uint8_t* plaintext, size_t size) {
    const uint64_t counter = m_sendCounter.fetch_add(1, std::memory_order_relaxed);
    if (size > INT_MAX) {
        spdlog::error("AesGcmCipher::encrypt: message too long ({} bytes, maximum {})", size,
                      INT_MAX);
        return {};
    }
    const Nonce nonce = nonceFor(m_baseIv, counter);
    ByteVector sealed(kOverhead + size);
    writeCounter(sealed.data(), counter);

    const OpensslPtr<EVP_CIPHER_CTX> context(EVP_CIPHER_CTX_new());
    EVP_CIPHER_CTX* const cipher = context.get();
    if (cipher == nullptr) {
        return encryptFailure("EVP_CIPHER_CTX_new");
    }
    if (EVP_EncryptInit_ex(cipher, m_algorithm.get(), nullptr, nullptr, nullptr) != 1) {
        return encryptFailure("EncryptInit_ex (cipher)");
    }
    if (EVP_CIPHER_CTX_ctrl(cipher, EVP_CTRL_GCM_SET_IVLEN, kNonceSize, nullptr) != 1) {
        return encryptFailure("set IV length");
    }
    if (EVP_EncryptInit_ex(cipher, nullptr, nullptr, m_key.data(), nonce.data()) != 1) {
        return encryptFailure("EncryptInit_ex (key/IV)");
    }
    uint8_t* const ciphertext = sealed.data() + kOverhead;
    int updated = 0;
    if (EVP_EncryptUpdate(cipher, ciphertext, &updated, plaintext, static_cast<int>(size)) != 1) {
        return encryptFailure("EncryptUpdate");
    }
    int finished = 0;
    if (EVP_EncryptFinal_ex(cipher, ciphertext + updated, &finished) != 1) {
        return encryptFailure("EncryptFinal_ex");
    }
    if (EVP_CIPHER_CTX_ctrl(cipher, EVP_CTRL_GCM_GET_TAG, kTagSize, sealed.data() + kCounterSize) !=
        1) {
        return encryptFailure("get tag");
    }
    sealed.resize(kOverhead + static_cast<size_t>(updated + finished));
    return sealed;
}

uint64_t AesGcmCipher::counterOf(const uint8_t* sealed) {
    uint64_t counter = 0;
    for (size_t i = kCounterSize; i-- > 0;) {
        counter = counter << 8 | sealed[i];
    }
    return counter;
}

ByteVector AesGcmCipher::decrypt(const uint8_t* sealed, size_t size) const {
    if (size < kOverhead) {
        spdlog::error("AesGcmCipher::decrypt: message too short ({} bytes, minimum {})", size,
                      kOverhead);
        return {};
    }
    const size_t length = size - kOverhead;
    if (length > INT_MAX) {
        spdlog::error("AesGcmCipher::decrypt: message too long ({} bytes)", size);
        return {};
    }
    const uint64_t counter = counterOf(sealed);
    const Nonce nonce = nonceFor(m_baseIv, counter);

    const OpensslPtr<EVP_CIPHER_CTX> context(EVP_CIPHER_CTX_new());
    EVP_CIPHER_CTX* const cipher = context.get();
    if (cipher == nullptr) {
        return decryptFailure("EVP_CIPHER_CTX_new");
    }
    if (EVP_DecryptInit_ex(cipher, m_algorithm.get(), nullptr, nullptr, nullptr) != 1) {
        return decryptFailure("DecryptInit_ex (cipher)");
    }
    if (EVP_CIPHER_CTX_ctrl(cipher, EVP_CTRL_GCM_SET_IVLEN, kNonceSize, nullptr) != 1) {
        return decryptFailure("set IV length");
    }
    if (EVP_DecryptInit_ex(cipher, nullptr, nullptr, m_key.data(), nonce.data()) != 1) {
        return decryptFailure("DecryptInit_ex (key/IV)");
    }
    ByteVector plaintext(length);
    int updated = 0;
    if (EVP_DecryptUpdate(cipher, plaintext.data(), &updated, sealed + kOverhead,
                          static_cast<int>(length)) != 1) {
        return decryptFailure("DecryptUpdate");
    }
    // The call takes the tag through a pointer without const, but only reads it.
    if (EVP_CIPHER_CTX_ctrl(cipher, EVP_CTRL_GCM_SET_TAG, kTagSize,
                            const_cast<uint8_t*>(sealed + kCounterSize)) != 1) {
        return decryptFailure("set tag");
    }
    int finished = 0;
    if (EVP_DecryptFinal_ex(cipher, plaintext.data() + updated, &finished) != 1) {
        spdlog::error(
            "AesGcmCipher::decrypt: authentication tag verification failed (counter={}): {}",
            counter, opensslErrors());
        return {};
    }
    plaintext.resize(static_cast<size_t>(updated + finished));
    return plaintext;
}

} // namespace corvane
