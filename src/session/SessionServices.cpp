#include "session/SessionServices.h"

#include "common/ByteViews.h"
#include "crypto/AesGcmCipher.h"
#include "services/ChatService.h"
#include "services/ClipboardSharing.h"
#include "services/FileTransferService.h"
#include "session/SessionLink.h"

#include <spdlog/spdlog.h>

namespace corvane {

SessionServices::SessionServices(SessionLink& link) : m_link(link) {}

SessionServices::~SessionServices() = default;

void SessionServices::start(bool clipboardSharing) {
    constexpr qint64 kTagSize = 1;
    m_fileTransfer = std::make_unique<FileTransferService>(
        [this](const ByteVector& message) { return sendFileTransfer(message); },
        static_cast<qint64>(SessionLink::kMaxControlMessage) - kTagSize);
    m_fileTransfer->setRoom([this] { return m_link.hasRoom(); });
    spdlog::info("File transfer service initialized");
    m_chat = std::make_unique<ChatService>(
        [this](const ByteVector& message) { return sendChat(message); });
    spdlog::info("Chat service initialized");
    m_clipboardEnabled = clipboardSharing;
    if (clipboardSharing) {
        m_clipboard = std::make_unique<ClipboardSharing>();
        QObject::connect(m_clipboard.get(), &ClipboardSharing::clipboardDataReady, &m_link,
                         [this](const QByteArray& data) { sendClipboard(data); });
        m_clipboard->start();
        spdlog::info("Clipboard sharing enabled");
    }
}

void SessionServices::stop() {
    setClipboardSharing(false);
}

void SessionServices::setClipboardSharing(bool enabled) {
    m_clipboardEnabled = enabled;
    if (m_clipboard && enabled) {
        m_clipboard->start();
    } else if (m_clipboard) {
        m_clipboard->stop();
    }
}

void SessionServices::onClipboard(ByteSpan message) {
    if (m_clipboardEnabled && m_clipboard) {
        m_clipboard->onRemoteClipboardData(
            QByteArray::fromRawData(viewOf(message).data(), viewOf(message).size()));
    }
}

void SessionServices::onFileTransfer(ByteSpan message) {
    if (m_fileTransfer) {
        m_fileTransfer->handleMessage(message.subspan(1));
    }
}

void SessionServices::onChat(ByteSpan message) {
    spdlog::info("Chat message received ({} bytes)", message.size());
    if (!m_chat || message.size() <= 1) {
        spdlog::warn("Chat: service not initialized or message too short");
        return;
    }
    m_chat->handleMessage(message.subspan(1));
}

void SessionServices::sendClipboard(const QByteArray& data) {
    // The data already includes its tag.
    if (m_link.send(ChannelType::Control, copyBytes(bytesOf(data))) == SendResult::SealingFailed) {
        spdlog::error("Failed to encrypt clipboard data");
    }
}

bool SessionServices::sendFileTransfer(const ByteVector& message) {
    return m_link.sendBulk(controlMessage(ControlTag::FileTransfer, message)) == SendResult::Sent;
}

bool SessionServices::sendChat(const ByteVector& message) {
    const ByteVector tagged = controlMessage(ControlTag::Chat, message);
    switch (m_link.send(ChannelType::Control, tagged)) {
    case SendResult::Sent:
        spdlog::debug("Chat message sent ({} bytes encrypted)",
                      tagged.size() + AesGcmCipher::kOverhead);
        return true;
    case SendResult::NotConnected:
        // A session without a cipher has no services.
        spdlog::warn("Chat send blocked: state={}, cipher={}, transport={}",
                     sessionStateName(m_link.state()), true, m_link.hasTransport());
        break;
    case SendResult::NoTransport:
        spdlog::warn("Chat: no active transport");
        break;
    case SendResult::SealingFailed:
        spdlog::warn("Chat: encryption failed");
        break;
    case SendResult::Refused:
        spdlog::warn("Chat: message refused by the transport");
        break;
    }
    return false;
}

} // namespace corvane
