#pragma once

#include "ByteVector.h"

#include <QByteArray>

namespace corvane::test {

/// The bytes that a published test vector gives in hexadecimal; spaces are skipped.
inline ByteVector hexBytes(const char* digits) {
    const QByteArray bytes = QByteArray::fromHex(digits);
    return ByteVector(bytes.begin(), bytes.end());
}

} // namespace corvane::test
