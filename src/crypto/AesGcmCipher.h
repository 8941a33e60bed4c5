#pragma once

#include "common/ByteVector.h"
#include "crypto/OpensslHandles.h"
#include "crypto/SecretBytes.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace corvane {

/// Seals and opens the messages of one session with AES-256-GCM. `encrypt` and `decrypt` may be
/// called from any number of threads at once.
///
/// Sealed message: the sender's message counter (8 bytes, little-endian), the GCM tag (16 bytes),
/// then the ciphertext, as long as the plaintext. The nonce is the base IV with the counter XORed
/// into its first eight bytes. Opening keeps no memory of counters: a replay opens again.
class AesGcmCipher {
public:
    /// Bytes that sealing adds to a message.
    static constexpr size_t kOverhead = 8 + 16;

    /// Throws `std::invalid_argument` unless `key` has 32 bytes and `baseIv` 12.
    AesGcmCipher(const ByteVector& key, const ByteVector& baseIv);
    AesGcmCipher(SecretBytes key, SecretBytes baseIv);

    /// The sealed message; empty on failure. Every call consumes one counter, failed ones too.
    ByteVector encrypt(const uint8_t* plaintext, size_t size);
    ByteVector encrypt(const ByteVector& plaintext);

    /// The sender's counter in a sealed message of at least `kOverhead` bytes; to be trusted only
    /// once the message has been opened.
    static uint64_t counterOf(const uint8_t* sealed);

    /// The plaintext; empty on failure, and for a sealed empty message.
    ByteVector decrypt(const uint8_t* sealed, size_t size) const;

private:
    SecretBytes m_key;
    SecretBytes m_baseIv;
    OpensslPtr<evp_cipher_st> m_algorithm;
    std::atomic<uint64_t> m_sendCounter{0};
};

} // namespace corvane
