#include "crypto/EcdhKeyExchange.h"
#include "crypto/OpensslHandles.h"
#include "support/LogCapture.h"
#include "support/MatchesPattern.h"

#include <QByteArray>
#include <gmock/gmock.h>
#include <openssl/evp.h>
#include <openssl/x509.h>

namespace corvane {
namespace {

using test::LogCapture;

std::string tokenOf(const OpensslPtr<EVP_PKEY>& key) {
    unsigned char* der = nullptr;
    const int length = i2d_PUBKEY(key.get(), &der);
    const OpensslPtr<unsigned char> owner(der);
    return QByteArray(reinterpret_cast<const char*>(der), length).toBase64().toStdString();
}

TEST(EcdhKeyExchange, TheTokenIsOneLineOfBase64WithAP256PublicKey) {
    const std::string token = EcdhKeyExchange().publicKeyBase64();
    // id-ecPublicKey, prime256v1, bit string, uncompressed point
    EXPECT_THAT(token,
                test::MatchesPattern("MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAE[A-Za-z0-9+/]+=="));
    EXPECT_EQ(token.size(), 124U);
    EXPECT_NE(EcdhKeyExchange().publicKeyBase64(), token);
}

TEST(EcdhKeyExchange, BothSidesDeriveTheSameKeyMaterial) {
    EcdhKeyExchange master;
    EcdhKeyExchange target;
    ASSERT_TRUE(target.deriveSharedKey(master.publicKeyBase64()));
    ASSERT_TRUE(master.deriveSharedKey(target.publicKeyBase64()));
    EXPECT_EQ(master.aesKey().size(), 32U);
    EXPECT_EQ(master.baseIv().size(), 12U);
    EXPECT_EQ(master.aesKey(), target.aesKey());
    EXPECT_EQ(master.baseIv(), target.baseIv());

    const ByteVector key = master.aesKey();
    EXPECT_FALSE(master.deriveSharedKey("no key"));
    EXPECT_EQ(master.aesKey(), key) << "a failure keeps what was derived";
    ASSERT_TRUE(master.deriveSharedKey(EcdhKeyExchange().publicKeyBase64()));
    EXPECT_NE(master.aesKey(), key) << "a second success replaces it";
}

TEST(EcdhKeyExchange, NothingIsThereBeforeDerivation) {
    const EcdhKeyExchange exchange;
    EXPECT_TRUE(exchange.aesKey().empty());
    EXPECT_TRUE(exchange.baseIv().empty());
}

TEST(EcdhKeyExchange, BadTokensAreRefused) {
    const std::string valid = EcdhKeyExchange().publicKeyBase64();
    const std::pair<const char*, std::string> cases[] = {
        {"empty", ""},
        {"not base64", "!? this is not base64 ?!"},
        {"line break inside", valid.substr(0, 64) + "\n" + valid.substr(64)},
        {"not a key", "aGVsbG8gd29ybGQh"},
        {"cut short", valid.substr(0, 100)},
        {"other curve", tokenOf(OpensslPtr<EVP_PKEY>(EVP_EC_gen("P-384")))},
        {"other algorithm",
         tokenOf(OpensslPtr<EVP_PKEY>(EVP_PKEY_Q_keygen(nullptr, nullptr, "X25519")))},
    };
    EcdhKeyExchange exchange;
    const LogCapture log;
    for (const auto& [name, token] : cases) {
        EXPECT_FALSE(exchange.deriveSharedKey(token)) << name;
    }
    EXPECT_EQ(log.lines().size(), std::size(cases)) << "one each";
    EXPECT_TRUE(exchange.deriveSharedKey(valid));
}

} // namespace
} // namespace corvane
