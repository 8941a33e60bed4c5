#pragma once

#include "common/ByteVector.h"

#include <QByteArray>
#include <QByteArrayView>

#include <string_view>

namespace corvane {

/// The same bytes, not copied: valid as long as the text is neither changed nor destroyed.
inline ByteSpan bytesOf(std::string_view text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

/// The same bytes, not copied: valid as long as the array is neither changed nor destroyed.
inline ByteSpan bytesOf(const QByteArray& array) {
    return {reinterpret_cast<const uint8_t*>(array.constData()), static_cast<size_t>(array.size())};
}

/// The same bytes in the form Qt's text and file functions take, not copied: valid as long as what
/// they are a part of.
inline QByteArrayView viewOf(ByteSpan bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

} // namespace corvane
