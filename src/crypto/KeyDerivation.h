#pragma once

#include "common/ByteVector.h"
#include "crypto/SecretBytes.h"

#include <cstddef>
#include <string_view>

struct evp_pkey_st;

namespace corvane {

/// The two steps from a pair of keys to key material. Both log a failure in the name of the
/// `EcdhKeyExchange` operation they serve and then return an empty buffer. Any thread.

/// The ECDH shared secret (32 bytes on P-256). Fails when the keys are not of one type and curve.
SecretBytes ecdhSharedSecret(evp_pkey_st* ownKey, evp_pkey_st* peerKey);

/// HKDF-SHA256, extract and expand (RFC 5869), to `length` bytes.
SecretBytes hkdfSha256(ByteSpan secret, ByteSpan salt, std::string_view info, size_t length);

} // namespace corvane
