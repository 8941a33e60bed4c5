#include "crypto/AesGcmCipher.h"
#include "support/Bytes.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>
#include <openssl/err.h>

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

TEST(AesGcmCipher, SealsAsCounterTagCiphertext) {
    // Test case 15 of the GCM submission: AES-256, 96-bit nonce, no associated data.
    const ByteVector plaintext =
        hexBytes("d9313225f88406e5a55909c5aff5269a86a7a9531534f7da2e4c303d8a318a72"
                 "1c3c0c95956809532fcf0e2449a6b525b16aedf5aa0de657ba637b391aafd255");
    AesGcmCipher cipher(kKey, kIv);
    EXPECT_EQ(cipher.encrypt(plaintext),
              hexBytes("0000000000000000 b094dac5d93471bdec1a502270e3cc6c"
                       "522dc1f099567d07f47f37a32a84427d643a8cdcbfe5c0c97598a2bd2555d1aa"
                       "8cb08e48590dbb3da7b08b1056828838c5f61e6393ba7a0abcc9f662898015ad"));
    const ByteVector second = cipher.encrypt(plaintext);
    EXPECT_EQ(ByteVector(second.begin(), second.begin() + 8), hexBytes("0100000000000000"));
    EXPECT_EQ(open(cipher, second), plaintext);
    EXPECT_EQ(open(cipher, second), plaintext) << "a replay opens again";
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

TEST(AesGcmCipher, AnEmptyMessageIsSealedToo) {
    const LogCapture log;
    AesGcmCipher cipher(kKey, kIv);
    const ByteVector sealed = cipher.encrypt(nullptr, 0);
    EXPECT_EQ(sealed.size(), 24U);
    EXPECT_TRUE(open(cipher, sealed).empty());
    EXPECT_THAT(log.lines(),
                testing::ElementsAre(
                    "debug|AesGcmCipher: initialized with 256-bit key and 96-bit base IV"));
}

TEST(AesGcmCipher, AnyFlippedBitFailsAtTheTag) {
    AesGcmCipher cipher(kKey, kIv);
    const ByteVector sealed = cipher.encrypt({9, 8, 7, 6, 5});
    for (size_t bit = 0; bit < sealed.size() * 8; ++bit) {
        const LogCapture log;
        ByteVector tampered = sealed;
        tampered[bit / 8] ^= static_cast<uint8_t>(1U << bit % 8);
        const uint64_t counter = bit < 64 ? uint64_t{1} << bit : 0;
        ERR_clear_error();
        EXPECT_TRUE(open(cipher, tampered).empty()) << bit;
        EXPECT_TRUE(log.once(fmt::format("error|AesGcmCipher::decrypt: authentication tag "
                                         "verification failed (counter={}): unknown error",
                                         counter)))
            << bit;
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
