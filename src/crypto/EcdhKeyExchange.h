#pragma once

#include "common/ByteVector.h"
#include "crypto/OpensslHandles.h"
#include "crypto/SecretBytes.h"

#include <memory>
#include <string>

namespace corvane {

class AesGcmCipher;

/// One side's ephemeral P-256 key pair and the session key agreed with it. One object per session
/// attempt, used from one thread.
class EcdhKeyExchange {
public:
    /// Generates the key pair; throws `std::runtime_error` when OpenSSL cannot.
    EcdhKeyExchange();

    /// The public key as it travels: the DER `SubjectPublicKeyInfo` in base64 on one line (124
    /// characters). Empty on failure.
    std::string publicKeyBase64() const;

    /// Agrees on the key material with the peer whose `publicKeyBase64` is `peerToken`. False
    /// leaves what an earlier success derived.
    bool deriveSharedKey(const std::string& peerToken);

    /// The AES-256-GCM key, 32 bytes; empty before the first success of `deriveSharedKey`.
    ByteVector aesKey() const;

    /// The nonce base, 12 bytes; empty before the first success of `deriveSharedKey`.
    ByteVector baseIv() const;

    /// A cipher with the key material, of which no copy is left unwiped. Throws
    /// `std::invalid_argument` before the first success of `deriveSharedKey`.
    std::unique_ptr<AesGcmCipher> createCipher() const;

private:
    bool deriveKeyMaterial(const SecretBytes& sharedSecret);

    OpensslPtr<evp_pkey_st> m_keyPair;
    SecretBytes m_aesKey;
    SecretBytes m_baseIv;
    bool m_derived = false;
};

} // namespace corvane
