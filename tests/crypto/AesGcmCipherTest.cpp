#include "crypto/AesGcmCipher.h"
#include "support/Bytes.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <future>
#include <set>
#include <stdexcept>

namespace corvane {
namespace {

using test::hexBytes;
using test::LogCapture;

const ByteVector kKey =
    hexBytes("feffe9928665731c6d6a8f9467308308feffe9928665731c6d6a8f9467308308");
const ByteVector kIv = hexBytes("cafebabefacedbaddecaf888");

ByteVector open(const AesGcmCipher& cipher, const ByteVector& sealed) {
    return cipher.decrypt(sealed.data(), sealed.size());
}

TEST(AesGcmCipher, OpensWhatItSealedAlsoAgain) {
    AesGcmCipher cipher(kKey, kIv);
    for (const ByteVector& plaintext : {ByteVector(), ByteVector(65, 7)}) {
        const ByteVector sealed = cipher.encrypt(plaintext);
        EXPECT_EQ(sealed.size(), 24 + plaintext.size());
        EXPECT_EQ(open(cipher, sealed), plaintext);
        EXPECT_EQ(open(cipher, sealed), plaintext) << "a replay";
    }
}

TEST(AesGcmCipher, TheCounterIsXoredIntoTheFirstEightBytesOfTheNonce) {
    const ByteVector plaintext{1, 2, 3};
    ByteVector nonce = kIv;
    for (uint8_t i = 0; i < 8; ++i) {
        nonce[i] ^= static_cast<uint8_t>(8 - i);
    }
    ByteVector sealed = AesGcmCipher(kKey, nonce).encrypt(plaintext);
    const ByteVector counter = hexBytes("0807060504030201");
    std::copy(counter.begin(), counter.end(), sealed.begin());
    EXPECT_EQ(open(AesGcmCipher(kKey, kIv), sealed), plaintext);
}

TEST(AesGcmCipher, AnyFlippedBitFailsAtTheTag) {
    AesGcmCipher cipher(kKey, kIv);
    const ByteVector sealed = cipher.encrypt({9, 8, 7, 6, 5});
    for (size_t bit = 0; bit < sealed.size() * 8; ++bit) {
        const LogCapture log;
        ByteVector tampered = sealed;
        tampered[bit / 8] ^= static_cast<uint8_t>(1U << bit % 8);
        EXPECT_TRUE(open(cipher, tampered).empty()) << bit;
        EXPECT_TRUE(log.contains("decrypt: authentication tag verification failed")) << bit;
    }
    EXPECT_FALSE(open(cipher, sealed).empty());
}

TEST(AesGcmCipher, WrongSizesAreRefused) {
    const LogCapture log;
    AesGcmCipher cipher(kKey, kIv);
    EXPECT_TRUE(open(cipher, ByteVector(23, 0)).empty());
    EXPECT_TRUE(log.once("error|AesGcmCipher::decrypt: message too short (23 bytes, minimum 24)"));

    // Refused before the pointer is looked at.
    const size_t tooLong = size_t{1} << 31;
    const uint8_t byte = 0;
    EXPECT_TRUE(cipher.encrypt(&byte, tooLong).empty());
    EXPECT_TRUE(cipher.decrypt(&byte, tooLong + 24).empty());
    EXPECT_EQ(cipher.encrypt(&byte, 1).at(0), 1) << "a refused message consumes its counter";

    const auto failure = [](size_t keySize, size_t ivSize) -> std::string {
        try {
            AesGcmCipher refused(ByteVector(keySize, 0), ByteVector(ivSize, 0));
        } catch (const std::invalid_argument& error) {
            return error.what();
        }
        return "accepted";
    };
    EXPECT_EQ(failure(16, 12), "AesGcmCipher: key must be exactly 32 bytes, got 16");
    EXPECT_EQ(failure(0, 0), "AesGcmCipher: key must be exactly 32 bytes, got 0");
    EXPECT_EQ(failure(32, 0), "AesGcmCipher: base IV must be exactly 12 bytes, got 0");
}

TEST(AesGcmCipher, ThreadsSealUnderDistinctCounters) {
    constexpr size_t kPerThread = 500;
    AesGcmCipher cipher(kKey, kIv);
    std::array<std::future<std::vector<ByteVector>>, 4> threads;
    for (auto& thread : threads) {
        thread = std::async(std::launch::async, [&cipher] {
            std::vector<ByteVector> sealed(kPerThread);
            std::ranges::generate(sealed, [&] { return cipher.encrypt({7}); });
            return sealed;
        });
    }
    std::set<std::string> counters;
    for (auto& thread : threads) {
        for (const ByteVector& sealed : thread.get()) {
            counters.emplace(sealed.begin(), sealed.begin() + 8);
            EXPECT_EQ(open(cipher, sealed), ByteVector{7});
        }
    }
    EXPECT_EQ(counters.size(), kPerThread * threads.size());
}

} // namespace
} // namespace corvane
