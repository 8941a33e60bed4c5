#pragma once

#include "common/ByteVector.h"

#include <QByteArray>

namespace corvane::test {

inline ByteVector bytes(const QByteArray& data) {
    return {data.begin(), data.end()};
}

/// What hexadecimal digits stand for; spaces are skipped.
inline ByteVector hexBytes(const QByteArray& digits) {
    return bytes(QByteArray::fromHex(digits));
}

} // namespace corvane::test
