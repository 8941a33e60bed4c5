#include "devserver/FrameScanner.h"

#include <QtEndian>

namespace corvane::devserver {
namespace {

constexpr int kLastChannel = 1;

} // namespace

FrameScanner::HeaderState FrameScanner::headerBytesArrived(qint64 count) {
    m_headerBytes += count;
    if (m_headerBytes < kHeaderBytes) {
        return HeaderState::Partial;
    }
    const auto length = qFromBigEndian<quint32>(m_header.data() + 1);
    if (channel() > kLastChannel || length > kMaxPayloadBytes) {
        return HeaderState::Invalid;
    }
    m_headerBytes = 0;
    m_payloadBytes = length;
    return HeaderState::Complete;
}

} // namespace corvane::devserver
