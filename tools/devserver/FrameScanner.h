#pragma once

#include <QtGlobal>

#include <array>

namespace corvane::devserver {

/// Follows a relay byte stream frame by frame without holding payloads: channel byte, payload
/// length in four bytes big-endian, payload.
class FrameScanner {
public:
    static constexpr qint64 kHeaderBytes = 5;
    static constexpr quint32 kMaxPayloadBytes = 16 * 1024 * 1024;

    enum class HeaderState { Partial, Complete, Invalid };

    /// Bytes still missing from the current header.
    qint64 headerBytesMissing() const { return kHeaderBytes - m_headerBytes; }

    /// Where to write the missing header bytes; report them with `headerBytesArrived`.
    char* headerSpace() { return m_header.data() + m_headerBytes; }

    /// Invalid for a channel other than 0 or 1 and for a payload above the limit.
    HeaderState headerBytesArrived(qint64 count);

    const char* header() const { return m_header.data(); }
    int channel() const { return static_cast<unsigned char>(m_header[0]); }

    /// Bytes of the current payload still to come; 0 while a header is awaited.
    qint64 payloadBytesMissing() const { return m_payloadBytes; }

    /// `count` must not exceed `payloadBytesMissing`.
    void payloadBytesArrived(qint64 count) { m_payloadBytes -= count; }

private:
    std::array<char, kHeaderBytes> m_header{};
    qint64 m_headerBytes = 0;
    qint64 m_payloadBytes = 0;
};

} // namespace corvane::devserver
