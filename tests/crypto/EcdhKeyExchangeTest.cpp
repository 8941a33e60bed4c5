#include "crypto/EcdhKeyExchange.h"
#include "crypto/KeyDerivation.h"
#include "crypto/OpensslErrors.h"
#include "support/LogCapture.h"
#include "support/MatchesPattern.h"

#include <QByteArray>
#include <gmock/gmock.h>
#include <openssl/err.h>
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
    const LogCapture log;
    const EcdhKeyExchange exchange;
    const std::string token = exchange.publicKeyBase64();
    EXPECT_THAT(token, test::MatchesPattern("[A-Za-z0-9+/]+=*"));
    EXPECT_EQ(token.size(), 124U);
    const auto der = QByteArray::fromBase64(QByteArray::fromStdString(token));
    EXPECT_EQ(der.size(), 91);
    // id-ecPublicKey, prime256v1, bit string, uncompressed point
    EXPECT_EQ(der.left(27).toHex(), "3059301306072a8648ce3d020106082a8648ce3d030107034200"
                                    "04");
    EXPECT_THAT(log.lines(),
                testing::ElementsAre("debug|EcdhKeyExchange: P-256 key pair generated"));
    EXPECT_NE(EcdhKeyExchange().publicKeyBase64(), token);
}

TEST(EcdhKeyExchange, BothSidesDeriveTheSameKeyMaterial) {
    EcdhKeyExchange master;
    EcdhKeyExchange target;
    const LogCapture log;
    ASSERT_TRUE(target.deriveSharedKey(master.publicKeyBase64()));
    EXPECT_THAT(log.lines(),
                testing::ElementsAre(
                    "debug|EcdhKeyExchange: ECDH shared secret derived (32 bytes)",
                    "debug|EcdhKeyExchange: AES-256-GCM key and base IV derived via HKDF-SHA256"));
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

TEST(EcdhKeyExchange, KeyMaterialIsTheExpandedSharedSecret) {
    EcdhKeyExchange exchange;
    const OpensslPtr<EVP_PKEY> peer(EVP_EC_gen("P-256"));
    ASSERT_TRUE(exchange.deriveSharedKey(tokenOf(peer)));

    const auto der = QByteArray::fromBase64(QByteArray::fromStdString(exchange.publicKeyBase64()));
    const auto* position = reinterpret_cast<const unsigned char*>(der.constData());
    const OpensslPtr<EVP_PKEY> own(d2i_PUBKEY(nullptr, &position, static_cast<long>(der.size())));
    const SecretBytes secret = ecdhSharedSecret(peer.get(), own.get());
    const ByteVector salt(32, 0);
    const ByteVector material =
        hkdfSha256(secret.span(), salt, "corvane-session-key-v1", 44).copy();
    EXPECT_EQ(exchange.aesKey(), ByteVector(material.begin(), material.begin() + 32));
    EXPECT_EQ(exchange.baseIv(), ByteVector(material.begin() + 32, material.end()));
}

TEST(EcdhKeyExchange, NothingIsThereBeforeDerivation) {
    const EcdhKeyExchange exchange;
    const LogCapture log;
    EXPECT_TRUE(exchange.aesKey().empty());
    EXPECT_TRUE(exchange.baseIv().empty());
    EXPECT_THAT(log.lines(),
                testing::ElementsAre("warning|EcdhKeyExchange::aesKey: key not yet derived",
                                     "warning|EcdhKeyExchange::baseIv: IV not yet derived"));
}

TEST(EcdhKeyExchange, BadTokensFailAtTheirStep) {
    const std::string valid = EcdhKeyExchange().publicKeyBase64();
    const std::string badBase64 = "base64 decode of peer key failed";
    const std::string badDer = "d2i_PUBKEY failed: error:";
    const std::string badKey = "derive_set_peer failed: error:";
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"empty", "", badBase64},
        {"not base64", "!? this is not base64 ?!", badBase64},
        {"line break inside", valid.substr(0, 64) + "\n" + valid.substr(64), badBase64},
        {"line breaks inside", valid.substr(0, 64) + "\r\n" + valid.substr(64) + "\r\n", badBase64},
        {"too long", std::string(516, 'A'), badBase64},
        {"not a key", "aGVsbG8gd29ybGQh", badDer},
        {"cut short", valid.substr(0, 100), badDer},
        {"other curve", tokenOf(OpensslPtr<EVP_PKEY>(EVP_EC_gen("P-384"))), badKey},
        {"other algorithm",
         tokenOf(OpensslPtr<EVP_PKEY>(EVP_PKEY_Q_keygen(nullptr, nullptr, "X25519"))), badKey},
    };
    EcdhKeyExchange exchange;
    for (const auto& [name, token, complaint] : cases) {
        const LogCapture log;
        EXPECT_FALSE(exchange.deriveSharedKey(token)) << name;
        EXPECT_THAT(log.lines(), testing::ElementsAre(testing::StartsWith(
                                     "error|EcdhKeyExchange::deriveSharedKey: " + complaint)))
            << name;
    }
    EXPECT_TRUE(exchange.deriveSharedKey(valid));
}

TEST(OpensslErrors, DrainTheQueueIntoOneText) {
    ERR_clear_error();
    EXPECT_EQ(opensslErrors(), "unknown error");
    ERR_raise(ERR_LIB_EVP, EVP_R_INVALID_KEY_LENGTH);
    ERR_raise(ERR_LIB_EVP, EVP_R_INVALID_IV_LENGTH);
    EXPECT_THAT(opensslErrors(),
                test::MatchesPattern("error:.*:invalid key length; error:.*:invalid iv length"));
    EXPECT_EQ(opensslErrors(), "unknown error");
}

} // namespace
} // namespace corvane
