#pragma once

#include "support/Bytes.h"

#include <QString>

namespace corvane::docs {

/// The keys of the documented session: what each side tells the other, as it travels, and what both
/// derive from it.
inline QString viewerPublicKey() {
    return QStringLiteral("MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAE2tC2U5QiHPmwUeH+yleH0Jjf5jf8kLn"
                          "vlF0MN3JYEYBScaBGHNuCUtYfHEVvo+WasfRbM6zPX1g4ngV3uJkLsw==");
}
inline QString sharedMachinePublicKey() {
    return QStringLiteral("MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAE0S37UonI1PgSCLcCcDmMNCKWlwoLzLd"
                          "Mc2/HVUSUv2NW+/PKNmzCPoFXhUwTxY1qrCPwRq2jD4NT508zA5hyqw==");
}
inline ByteVector sessionKey() {
    return test::hexBytes("790f08aad0ece6ffabc9bb60e0e1a655d43bfd69a9bb7332025f48ac556c046c");
}
inline ByteVector sessionBaseIv() {
    return test::hexBytes("b66de7ebed21d51546071ac8");
}

} // namespace corvane::docs
