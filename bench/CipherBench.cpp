// What the message cipher costs compared with the bare algorithm. The bare loops reuse one context
// and one buffer and set a new nonce per message: the least that sealing separate messages
// requires.
#include "SideBySide.h"
#include "crypto/AesGcmCipher.h"

#include <benchmark/benchmark.h>
#include <openssl/evp.h>

#include <array>

namespace corvane {
namespace {

constexpr int kTagSize = 16;

const ByteVector& key() {
    static const ByteVector bytes(32, 0x4B);
    return bytes;
}

const ByteVector& baseIv() {
    static const ByteVector bytes(12, 0x17);
    return bytes;
}

class BareEvp {
public:
    explicit BareEvp(int encrypting) {
        EVP_CipherInit_ex(m_context.get(), EVP_aes_256_gcm(), nullptr, key().data(),
                          baseIv().data(), encrypting);
    }

    void seal(const ByteVector& plaintext, ByteVector& ciphertext) {
        nextNonce();
        update(plaintext, ciphertext);
        EVP_CIPHER_CTX_ctrl(m_context.get(), EVP_CTRL_GCM_GET_TAG, kTagSize, m_tag.data());
    }

    bool open(const ByteVector& ciphertext, ByteVector& plaintext) {
        nextNonce();
        EVP_CIPHER_CTX_ctrl(m_context.get(), EVP_CTRL_GCM_SET_TAG, kTagSize, m_tag.data());
        return update(ciphertext, plaintext);
    }

    void rewind() { m_nonce = {}; }
    void takeTag(const BareEvp& other) { m_tag = other.m_tag; }

private:
    void nextNonce() {
        EVP_CipherInit_ex(m_context.get(), nullptr, nullptr, nullptr, m_nonce.data(), -1);
        ++m_nonce[0];
    }

    bool update(const ByteVector& input, ByteVector& output) {
        int length = 0;
        EVP_CipherUpdate(m_context.get(), output.data(), &length, input.data(),
                         static_cast<int>(input.size()));
        return EVP_CipherFinal_ex(m_context.get(), output.data() + length, &length) == 1;
    }

    OpensslPtr<EVP_CIPHER_CTX> m_context{EVP_CIPHER_CTX_new()};
    std::array<uint8_t, 12> m_nonce{};
    std::array<uint8_t, kTagSize> m_tag{};
};

/// Bytes per turn: many small messages, so that reading the clock is negligible.
constexpr int64_t kTurnBytes = 1 << 20;

int64_t messagesPerTurn(const benchmark::State& state) {
    return kTurnBytes / state.range(0);
}

ByteVector plaintextOf(const benchmark::State& state) {
    return ByteVector(static_cast<size_t>(state.range(0)), 0x5A);
}

void seal(benchmark::State& state) {
    const ByteVector plaintext = plaintextOf(state);
    const int64_t count = messagesPerTurn(state);
    AesGcmCipher cipher(key(), baseIv());
    BareEvp evp(1);
    ByteVector ciphertext(plaintext.size());
    const auto ours = [&] {
        for (int64_t i = 0; i < count; ++i) {
            benchmark::DoNotOptimize(cipher.encrypt(plaintext).data());
        }
    };
    const auto limit = [&] {
        for (int64_t i = 0; i < count; ++i) {
            evp.seal(plaintext, ciphertext);
            benchmark::DoNotOptimize(ciphertext.data());
            benchmark::ClobberMemory();
        }
    };
    sideBySide(state, count, ours, limit);
}

void open(benchmark::State& state) {
    ByteVector plaintext = plaintextOf(state);
    const int64_t count = messagesPerTurn(state);
    AesGcmCipher cipher(key(), baseIv());
    const ByteVector sealed = cipher.encrypt(plaintext);
    BareEvp sealer(1);
    ByteVector ciphertext(plaintext.size());
    sealer.seal(plaintext, ciphertext);
    BareEvp evp(0);
    evp.takeTag(sealer);
    const auto ours = [&] {
        for (int64_t i = 0; i < count; ++i) {
            benchmark::DoNotOptimize(cipher.decrypt(sealed.data(), sealed.size()).data());
        }
    };
    const auto limit = [&] {
        for (int64_t i = 0; i < count; ++i) {
            evp.rewind();
            if (!evp.open(ciphertext, plaintext)) {
                state.SkipWithError("the message did not open");
                return;
            }
            benchmark::ClobberMemory();
        }
    };
    sideBySide(state, count, ours, limit);
}

void messageSizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(1 << 10)->Arg(64 << 10)->Arg(1 << 20)->UseManualTime()->Iterations(2000);
}

BENCHMARK(seal)->Name("Seal")->Apply(messageSizes);
BENCHMARK(open)->Name("Open")->Apply(messageSizes);

} // namespace
} // namespace corvane
