#include "network/identity/PairingCodeGenerator.h"

#include <algorithm>
#include <array>
#include <functional>
#include <mutex>
#include <random>

namespace corvane {

namespace {

constexpr uint32_t kFirstCode = 100'000;
constexpr uint32_t kCodeCount = 900'000;

// 2^32 is not a multiple of the number of codes: without rejecting the draws below this remainder
// some codes would come up more often than others.
constexpr uint32_t kRejectedBelow = static_cast<uint32_t>((uint64_t{1} << 32) % kCodeCount);

// A single number for a seed could be told from two codes, by trying all 2^32 in an hour, and with
// it every code to come.
std::mt19937 seededGenerator() {
    std::random_device device;
    std::array<uint32_t, 16> numbers{};
    std::ranges::generate(numbers, std::ref(device));
    std::seed_seq seed(numbers.begin(), numbers.end());
    return std::mt19937(seed);
}

} // namespace

QString PairingCodeGenerator::next() {
    static std::mutex mutex;
    static std::mt19937 generator = seededGenerator();
    const std::lock_guard lock(mutex);
    return draw([] { return static_cast<uint32_t>(generator()); });
}

QString PairingCodeGenerator::draw(const std::function<uint32_t()>& source) {
    uint64_t product = 0;
    do {
        product = uint64_t{source()} * kCodeCount;
    } while (static_cast<uint32_t>(product) < kRejectedBelow);
    return QString::number(kFirstCode + static_cast<uint32_t>(product >> 32));
}

} // namespace corvane
