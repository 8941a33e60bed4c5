#include "services/ChatService.h"

#include "common/ByteReader.h"
#include "common/ByteViews.h"
#include "common/ByteWriter.h"

#include <spdlog/spdlog.h>

#include <algorithm>

namespace corvane {

namespace {

constexpr size_t kHeaderSize = 8 + 2;
constexpr qsizetype kMaxTextSize = 0xFFFF;

/// The peer's time may lie beyond what a date can show; it is capped at the end of the year 9999.
QDateTime dateTimeOf(quint64 milliseconds) {
    constexpr quint64 kLatest = 253'402'300'799'999;
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(std::min(milliseconds, kLatest)));
}

} // namespace

ChatService::ChatService(SendFunction send, QObject* parent)
    : QObject(parent), m_send(std::move(send)) {}

void ChatService::sendMessage(const QString& text) {
    QByteArray utf8 = text.toUtf8();
    if (utf8.size() > kMaxTextSize) {
        spdlog::warn("ChatService: message too long, truncating to 65535 bytes");
        utf8.truncate(kMaxTextSize);
    }
    ByteWriter writer(static_cast<size_t>(utf8.size()) + kHeaderSize);
    writer.integer(static_cast<quint64>(QDateTime::currentMSecsSinceEpoch()));
    writer.integer(static_cast<quint16>(utf8.size()));
    writer.bytes(bytesOf(utf8));
    if (m_send) {
        m_send(writer.take());
    }
}

void ChatService::handleMessage(ByteSpan payload) {
    ByteReader reader(payload);
    const auto milliseconds = reader.integer<quint64>();
    const auto length = reader.integer<quint16>();
    if (!milliseconds || !length) {
        spdlog::warn("ChatService: message too short ({} bytes)", payload.size());
        return;
    }
    const auto text = reader.bytes(*length);
    if (!text) {
        spdlog::warn("ChatService: message truncated (expected {} + {} bytes)", kHeaderSize,
                     *length);
        return;
    }
    Q_EMIT messageReceived(QString::fromUtf8(viewOf(*text)), dateTimeOf(*milliseconds));
}

} // namespace corvane
