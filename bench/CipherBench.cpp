// What the message cipher costs beside the bare algorithm. The bare loops reuse one context and one
// buffer and set a new nonce per message: the least that any sealing of separate messages must do.
#include "AesGcmCipher.h"

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

ByteVector plaintextOf(benchmark::State& state) {
    return ByteVector(static_cast<size_t>(state.range(0)), 0x5A);
}

void countBytes(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

void seal(benchmark::State& state) {
    AesGcmCipher cipher(key(), baseIv());
    const ByteVector plaintext = plaintextOf(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(cipher.encrypt(plaintext).data());
    }
    countBytes(state);
}

void open(benchmark::State& state) {
    AesGcmCipher cipher(key(), baseIv());
    const ByteVector sealed = cipher.encrypt(plaintextOf(state));
    for (auto _ : state) {
        benchmark::DoNotOptimize(cipher.decrypt(sealed.data(), sealed.size()).data());
    }
    countBytes(state);
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

void sealBareEvp(benchmark::State& state) {
    BareEvp evp(1);
    const ByteVector plaintext = plaintextOf(state);
    ByteVector ciphertext(plaintext.size());
    for (auto _ : state) {
        evp.seal(plaintext, ciphertext);
        benchmark::DoNotOptimize(ciphertext.data());
        benchmark::ClobberMemory();
    }
    countBytes(state);
}

void openBareEvp(benchmark::State& state) {
    BareEvp sealer(1);
    ByteVector plaintext = plaintextOf(state);
    ByteVector ciphertext(plaintext.size());
    sealer.seal(plaintext, ciphertext);
    BareEvp evp(0);
    evp.takeTag(sealer);
    for (auto _ : state) {
        evp.rewind();
        if (!evp.open(ciphertext, plaintext)) {
            state.SkipWithError("the message did not open");
            break;
        }
        benchmark::ClobberMemory();
    }
    countBytes(state);
}

void messageSizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(1 << 10)->Arg(64 << 10)->Arg(1 << 20);
}

BENCHMARK(seal)->Name("Seal")->Apply(messageSizes);
BENCHMARK(sealBareEvp)->Name("SealBareEvp")->Apply(messageSizes);
BENCHMARK(open)->Name("Open")->Apply(messageSizes);
BENCHMARK(openBareEvp)->Name("OpenBareEvp")->Apply(messageSizes);

} // namespace
} // namespace corvane
