#pragma once

#include <QObject>
#include <QPointer>

class QDialog;

namespace corvane {

class ChatDialog;
class ConnectionQualityMonitor;
class SessionManager;

/// The windows that belong to one session: chat, files and connection information. None of them
/// outlives the session for which it was opened.
class SessionDialogs : public QObject {
    Q_OBJECT

public:
    /// All are borrowed; the dialogs belong to `window`.
    SessionDialogs(SessionManager* session, const ConnectionQualityMonitor* quality,
                   QWidget* window);

    /// Prepares the chat of the session that has just connected.
    void begin();

    /// Closes and discards every dialog.
    void end();

    void openChat();
    void openFiles();
    void openInfo();

Q_SIGNALS:
    /// Whether an unread message waits while the chat window is not open.
    void chatWaiting(bool waiting);

private:
    void setUpChat();
    void sendChat(const QString& text);
    void receiveChat(const QString& text, const QDateTime& timestamp);
    void present(QDialog* dialog);

    SessionManager* const m_session;
    const ConnectionQualityMonitor* const m_quality;
    QWidget* const m_window;
    QPointer<ChatDialog> m_chat;
    QPointer<QDialog> m_files;
    QPointer<QDialog> m_info;
};

} // namespace corvane
