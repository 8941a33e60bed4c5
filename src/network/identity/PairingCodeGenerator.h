#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace corvane {

/// Draws pairing codes: the numbers from 100000 to 999999, all equally likely.
class PairingCodeGenerator {
public:
    /// A code from the process-wide random source.
    static QString next();

    /// A code from `source`, which yields uniformly distributed 32-bit numbers.
    static QString draw(const std::function<uint32_t()>& source);
};

} // namespace corvane
