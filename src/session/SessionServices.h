#pragma once

#include "common/ByteVector.h"

#include <QByteArray>

#include <memory>

namespace corvane {

class ChatService;
class ClipboardSharing;
class FileTransferService;
class SessionLink;

/// The services of one running session, connected to the control channel. Main thread.
class SessionServices {
public:
    /// `link` is borrowed and must outlive the services.
    explicit SessionServices(SessionLink& link);
    ~SessionServices();

    void start(bool clipboardSharing);
    void stop();

    /// Has no effect on a session that started without clipboard sharing: it goes on refusing text.
    void setClipboardSharing(bool enabled);

    /// Null before `start`.
    ChatService* chat() const { return m_chat.get(); }
    FileTransferService* fileTransfer() const { return m_fileTransfer.get(); }

    // Received messages, tag byte included.
    void onClipboard(ByteSpan message);
    void onFileTransfer(ByteSpan message);
    void onChat(ByteSpan message);

private:
    void sendClipboard(const QByteArray& data);
    bool sendFileTransfer(const ByteVector& message);
    bool sendChat(const ByteVector& message);

    SessionLink& m_link;
    bool m_clipboardEnabled = false;
    std::unique_ptr<FileTransferService> m_fileTransfer;
    std::unique_ptr<ChatService> m_chat;
    std::unique_ptr<ClipboardSharing> m_clipboard;
};

} // namespace corvane
