#include "ui/ChatDialog.h"

#include "ui/UiColors.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace corvane {

namespace {

QString transcriptStyle() {
    return QStringLiteral("body { font-family: sans-serif; font-size: 13px; }"
                          ".bubble { margin: 4px 0; }"
                          ".me    { color: %1; font-weight: bold; }"
                          ".remote{ color: %2; font-weight: bold; }"
                          ".time  { color: %3; font-size: 10px; }"
                          ".text  { color: %4; }")
        .arg(QLatin1String(colors::kAccent), QLatin1String(colors::kPartner),
             QLatin1String(colors::kFaint), QLatin1String(colors::kText));
}

} // namespace

ChatDialog::ChatDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowStaysOnTopHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint) {
    setWindowTitle(tr("Chat"));
    resize(340, 460);

    m_transcript = new QTextBrowser(this);
    m_transcript->setObjectName(QStringLiteral("chatTranscript"));
    m_transcript->setAccessibleName(tr("Messages"));
    m_transcript->setOpenLinks(false);
    m_transcript->setOpenExternalLinks(false);
    m_transcript->document()->setDefaultStyleSheet(transcriptStyle());
    m_transcript->document()->setMaximumBlockCount(kMaxMessages);

    m_input = new QLineEdit(this);
    m_input->setObjectName(QStringLiteral("chatInput"));
    m_input->setPlaceholderText(tr("Type a message…"));
    m_input->setAccessibleName(tr("Message"));
    auto* const send = new QPushButton(tr("Send"), this);
    send->setObjectName(QStringLiteral("chatSendButton"));
    send->setAutoDefault(false);
    connect(m_input, &QLineEdit::returnPressed, this, &ChatDialog::onSendClicked);
    connect(send, &QPushButton::clicked, this, &ChatDialog::onSendClicked);

    auto* const row = new QHBoxLayout;
    row->addWidget(m_input, 1);
    row->addWidget(send);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    layout->addWidget(m_transcript, 1);
    layout->addLayout(row);
}

void ChatDialog::appendMessage(const QString& sender, const QString& text,
                               const QDateTime& timestamp) {
    const QString senderClass =
        sender == ownName() ? QStringLiteral("me") : QStringLiteral("remote");
    m_transcript->append(
        QStringLiteral("<div class='bubble'><span class='%1'>%2</span> <span class='time'>%3</span>"
                       "<br/><span class='text'>%4</span></div>")
            .arg(senderClass, sender.toHtmlEscaped(), timestamp.toString(QStringLiteral("HH:mm")),
                 text.toHtmlEscaped()));
    scrollToEnd();
}

void ChatDialog::onSendClicked() {
    const QString text = m_input->text().trimmed().left(kMaxMessage);
    if (text.isEmpty()) {
        return;
    }
    m_input->clear();
    Q_EMIT messageSent(text);
}

void ChatDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    m_input->setFocus();
    // Text left half typed when the window was hidden would be selected, and so replaced by the
    // next key press.
    QMetaObject::invokeMethod(m_input, &QLineEdit::deselect, Qt::QueuedConnection);
    scrollToEnd();
}

void ChatDialog::scrollToEnd() {
    QScrollBar* const bar = m_transcript->verticalScrollBar();
    bar->setValue(bar->maximum());
}

} // namespace corvane
