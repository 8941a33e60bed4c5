#include "network/identity/PairingCodeGenerator.h"

#include <mutex>
#include <random>

namespace corvane {

namespace {

constexpr uint32_t kFirstCode = 100'000;
constexpr uint32_t kCodeCount = 900'000;

// 2^32 is not a multiple of the number of codes: without rejecting the draws below this remainder
// some codes would come up more often than others.
constexpr uint32_t kRejectedBelow = static_cast<uint32_t>((uint64_t{1} << 32) % kCodeCount);

} // namespace

QString PairingCodeGenerator::next() {
    static std::mutex mutex;
    static std::mt19937 generator{std::random_device()()};
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
