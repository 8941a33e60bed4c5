#include "services/ClipboardSharing.h"

#include "common/ByteReader.h"
#include "common/ByteViews.h"
#include "common/ByteWriter.h"
#include "common/ControlTag.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

constexpr auto kTag = static_cast<uint8_t>(ControlTag::Clipboard);
constexpr size_t kHeaderSize = 1 + 4;
constexpr size_t kMaxTextSize = 10 * 1024 * 1024;

/// Null without a GUI application: its clipboard would have no window system behind it.
QClipboard* applicationClipboard() {
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr
               ? QGuiApplication::clipboard()
               : nullptr;
}

} // namespace

ClipboardSharing::~ClipboardSharing() {
    stop();
}

void ClipboardSharing::start() {
    if (m_active) {
        spdlog::debug("ClipboardSharing already active");
        return;
    }
    QClipboard* const clipboard = applicationClipboard();
    if (clipboard == nullptr) {
        spdlog::error("ClipboardSharing: QApplication::clipboard() returned null");
        return;
    }
    connect(clipboard, &QClipboard::dataChanged, this, &ClipboardSharing::onLocalClipboardChanged);
    m_active = true;
    spdlog::info("ClipboardSharing started");
}

void ClipboardSharing::stop() {
    if (!m_active) {
        return;
    }
    if (QClipboard* const clipboard = applicationClipboard()) {
        clipboard->disconnect(this);
    }
    m_active = false;
    m_ignoreNextChange = false;
    spdlog::info("ClipboardSharing stopped");
}

void ClipboardSharing::onLocalClipboardChanged() {
    if (m_ignoreNextChange) {
        m_ignoreNextChange = false;
        spdlog::debug("ClipboardSharing: ignoring self-triggered clipboard change");
        return;
    }
    const QClipboard* const clipboard = m_active ? applicationClipboard() : nullptr;
    const QMimeData* const data = clipboard != nullptr ? clipboard->mimeData() : nullptr;
    if (data == nullptr || !data->hasText()) {
        return;
    }
    const QByteArray text = data->text().toUtf8();
    if (text.isEmpty()) {
        return;
    }
    const auto size = static_cast<size_t>(text.size());
    if (size > kMaxTextSize) {
        spdlog::warn("ClipboardSharing: local clipboard text too large ({} bytes, max {} bytes) — "
                     "skipping",
                     size, kMaxTextSize);
        return;
    }
    ByteWriter writer(kHeaderSize);
    writer.integer(kTag);
    writer.integer(static_cast<quint32>(size));
    const ByteVector header = writer.take();
    const QByteArray message = viewOf(header).toByteArray() + text;
    spdlog::debug("ClipboardSharing: local clipboard changed, sending {} bytes of text", size);
    Q_EMIT clipboardDataReady(message);
}

void ClipboardSharing::onRemoteClipboardData(const QByteArray& data) {
    ByteReader reader(bytesOf(data));
    const auto tag = reader.integer<quint8>();
    const auto length = reader.integer<quint32>();
    if (!tag || !length) {
        spdlog::warn("ClipboardSharing: received message too small ({} bytes, minimum {})",
                     data.size(), kHeaderSize);
        return;
    }
    if (*tag != kTag) {
        spdlog::warn("ClipboardSharing: unexpected message type tag 0x{:02X}, expected 0x{:02X}",
                     *tag, kTag);
        return;
    }
    if (*length > kMaxTextSize) {
        spdlog::warn("ClipboardSharing: remote clipboard text too large ({} bytes, max {} bytes) — "
                     "ignoring",
                     *length, kMaxTextSize);
        return;
    }
    if (reader.remaining() < *length) {
        spdlog::warn("ClipboardSharing: message truncated — expected {} bytes, got {}",
                     *length + kHeaderSize, data.size());
        return;
    }
    const QString text = QString::fromUtf8(data.constData() + kHeaderSize, *length);
    if (text.isEmpty()) {
        spdlog::debug("ClipboardSharing: received empty clipboard text — ignoring");
        return;
    }
    spdlog::debug("ClipboardSharing: received {} bytes of remote clipboard text", *length);
    m_ignoreNextChange = true;
    if (QClipboard* const clipboard = applicationClipboard()) {
        clipboard->setText(text);
    } else {
        spdlog::error("ClipboardSharing: QApplication::clipboard() returned null");
        m_ignoreNextChange = false;
    }
}

} // namespace corvane
