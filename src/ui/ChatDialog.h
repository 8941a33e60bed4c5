#pragma once

#include <QDialog>

class QDateTime;
class QLineEdit;
class QTextBrowser;

namespace corvane {

/// A small window, kept on top of others, in which the two sides of a session exchange text
/// messages. It only shows and collects them; its creator sends and receives them.
///
/// Object names: "chatTranscript", "chatInput" and "chatSendButton".
class ChatDialog : public QDialog {
    Q_OBJECT

public:
    /// Max messages in the transcript; the oldest make room for new ones.
    static constexpr int kMaxMessages = 1000;

    /// Max characters sent of a message.
    static constexpr int kMaxMessage = 10'000;

    explicit ChatDialog(QWidget* parent = nullptr);

    /// The senders' names in the user's language.
    static QString ownName() { return tr("Me"); }
    static QString partnerName() { return tr("Remote"); }

    /// Adds a message to the transcript, shown literally, and scrolls to it. Passing `ownName` as
    /// `sender` marks it as the user's own.
    void appendMessage(const QString& sender, const QString& text, const QDateTime& timestamp);

public Q_SLOTS:
    /// Takes the message from the input line and emits it, unless it is blank.
    void onSendClicked();

Q_SIGNALS:
    void messageSent(QString text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void scrollToEnd();

    QTextBrowser* m_transcript = nullptr;
    QLineEdit* m_input = nullptr;
};

} // namespace corvane
