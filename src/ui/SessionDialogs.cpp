#include "ui/SessionDialogs.h"

#include "services/ChatService.h"
#include "session/SessionManager.h"
#include "ui/ChatDialog.h"
#include "ui/ConnectionInfoDialog.h"
#include "ui/FileManagerDialog.h"

#include <QDateTime>
#include <spdlog/spdlog.h>

namespace corvane {

SessionDialogs::SessionDialogs(SessionManager* session, const ConnectionQualityMonitor* quality,
                               QWidget* window)
    : QObject(window), m_session(session), m_quality(quality), m_window(window) {}

void SessionDialogs::begin() {
    end();
    setUpChat();
}

void SessionDialogs::end() {
    for (QDialog* const dialog :
         {static_cast<QDialog*>(m_chat.data()), m_files.data(), m_info.data()}) {
        if (dialog != nullptr) {
            // A signal of the dialog may be what ended the session.
            dialog->disconnect(this);
            dialog->hide();
            dialog->deleteLater();
        }
    }
    m_chat = nullptr;
    m_files = nullptr;
    m_info = nullptr;
    Q_EMIT chatWaiting(false);
}

void SessionDialogs::openChat() {
    if (m_chat) {
        present(m_chat);
        Q_EMIT chatWaiting(false);
    }
}

void SessionDialogs::openFiles() {
    // One for the whole session: closing only hides it, so that its transfers continue.
    if (!m_files) {
        m_files = new FileManagerDialog(m_session->fileTransferService(), m_window);
        m_files->setObjectName(QStringLiteral("fileManagerDialog"));
    }
    present(m_files);
}

void SessionDialogs::openInfo() {
    if (!m_info) {
        m_info = new ConnectionInfoDialog(m_session, m_quality, m_window);
        m_info->setObjectName(QStringLiteral("connectionInfoDialog"));
        m_info->setAttribute(Qt::WA_DeleteOnClose);
    }
    present(m_info);
}

void SessionDialogs::setUpChat() {
    ChatService* const service = m_session->chatService();
    spdlog::info("setupChatDialog: chatService={}", service != nullptr);
    m_chat = new ChatDialog(m_window);
    m_chat->setObjectName(QStringLiteral("chatDialog"));
    connect(m_chat, &ChatDialog::messageSent, this, &SessionDialogs::sendChat);
    if (service != nullptr) {
        connect(service, &ChatService::messageReceived, m_chat, // ends with this session's chat
                [this](const QString& text, const QDateTime& timestamp) {
                    receiveChat(text, timestamp);
                });
    }
}

void SessionDialogs::sendChat(const QString& text) {
    // At debug level only: what people write to each other does not belong in an ordinary log.
    spdlog::debug("Chat: sending message '{}' ({} chars)", text.toStdString(), text.size());
    if (ChatService* const service = m_session->chatService()) {
        service->sendMessage(text);
    }
    if (m_chat) {
        m_chat->appendMessage(ChatDialog::ownName(), text, QDateTime::currentDateTime());
    }
}

void SessionDialogs::receiveChat(const QString& text, const QDateTime& timestamp) {
    if (!m_chat) {
        return;
    }
    m_chat->appendMessage(ChatDialog::partnerName(), text, timestamp);
    if (m_chat->isVisible()) {
        return;
    }
    if (m_session->role() == SessionRole::Target) {
        present(m_chat);
    } else {
        Q_EMIT chatWaiting(true);
    }
}

void SessionDialogs::present(QDialog* dialog) {
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace corvane
