#include "crypto/KeyDerivation.h"
#include "crypto/OpensslHandles.h"
#include "support/Bytes.h"

#include <gtest/gtest.h>
#include <openssl/evp.h>

namespace corvane {
namespace {

using test::hexBytes;

OpensslPtr<EVP_PKEY> p256Key(const QByteArray& privateHex, const QByteArray& publicHex) {
    const ByteVector der =
        hexBytes("30770201010420" + privateHex + "a00a06082a8648ce3d030107a144034200" + publicHex);
    const uint8_t* position = der.data();
    return OpensslPtr<EVP_PKEY>(
        d2i_AutoPrivateKey(nullptr, &position, static_cast<long>(der.size())));
}

// RFC 5903, section 8.1.
TEST(KeyDerivation, SharedSecretOfThePublishedKeyPairs) {
    const auto initiator =
        p256Key("C88F01F510D9AC3F70A292DAA2316DE544E9AAB8AFE84049C62A9C57862D1433",
                "04 DAD0B65394221CF9B051E1FECA5787D098DFE637FC90B9EF945D0C3772581180"
                "5271A0461CDB8252D61F1C456FA3E59AB1F45B33ACCF5F58389E0577B8990BB3");
    const auto responder =
        p256Key("C6EF9C5D78AE012A011164ACB397CE2088685D8F06BF9BE0B283AB46476BEE53",
                "04 D12DFB5289C8D4F81208B70270398C342296970A0BCCB74C736FC7554494BF63"
                "56FBF3CA366CC23E8157854C13C58D6AAC23F046ADA30F8353E74F33039872AB");
    const ByteVector secret =
        hexBytes("D6840F6B42F6EDAFD13116E0E12565202FEF8E9ECE7DCE03812464D04B9442DE");
    EXPECT_EQ(ecdhSharedSecret(initiator.get(), responder.get()).copy(), secret);
    EXPECT_EQ(ecdhSharedSecret(responder.get(), initiator.get()).copy(), secret);
}

// RFC 5869, appendix A, cases 1 to 3.
TEST(KeyDerivation, HkdfGivesThePublishedOutputs) {
    const char* const vectors[][4] = {
        {"0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b", "000102030405060708090a0b0c",
         "f0f1f2f3f4f5f6f7f8f9",
         "3cb25f25faacd57a90434f64d0362f2a2d2d0a90cf1a5a4c5db02d56ecc4c5bf34007208d5b887185865"},
        {"000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f202122232425262728292a2b"
         "2c2d2e2f303132333435363738393a3b3c3d3e3f404142434445464748494a4b4c4d4e4f",
         "606162636465666768696a6b6c6d6e6f707172737475767778797a7b7c7d7e7f808182838485868788898a8b"
         "8c8d8e8f909192939495969798999a9b9c9d9e9fa0a1a2a3a4a5a6a7a8a9aaabacadaeaf",
         "b0b1b2b3b4b5b6b7b8b9babbbcbdbebfc0c1c2c3c4c5c6c7c8c9cacbcccdcecfd0d1d2d3d4d5d6d7d8d9dadb"
         "dcdddedfe0e1e2e3e4e5e6e7e8e9eaebecedeeeff0f1f2f3f4f5f6f7f8f9fafbfcfdfeff",
         "b11e398dc80327a1c8e7f78c596a49344f012eda2d4efad8a050cc4c19afa97c59045a99cac7827271cb41c6"
         "5e590e09da3275600c2f09b8367793a9aca3db71cc30c58179ec3e87c14c01d5c1f3434f1d87"},
        {"0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b0b", "", "",
         "8da4e775a563c18f715f802a063c5a31b8a11f5c5ee1879ec3454e5f3c738d2d9d201395faa4b61a96c8"},
    };
    for (const auto& [secret, salt, infoHex, outputHex] : vectors) {
        const ByteVector info = hexBytes(infoHex);
        const ByteVector output = hexBytes(outputHex);
        const std::string_view infoText(reinterpret_cast<const char*>(info.data()), info.size());
        EXPECT_EQ(hkdfSha256(hexBytes(secret), hexBytes(salt), infoText, output.size()).copy(),
                  output);
    }
}

} // namespace
} // namespace corvane
