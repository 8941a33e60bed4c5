#include "ui/MessageBoxes.h"

namespace corvane {

namespace {

/// Limits the text so that the box's buttons stay on the screen.
QString boundedText(const QString& text) {
    constexpr qsizetype kMaxText = 1000;
    constexpr qsizetype kMaxLines = 20;
    return text.first(qMin(text.size(), kMaxText)).section(QLatin1Char('\n'), 0, kMaxLines - 1);
}

} // namespace

MessageBoxes::MessageBoxes(QWidget* window) : QObject(window), m_window(window) {}

void MessageBoxes::warn(const QString& title, const QString& text) {
    tell(QMessageBox::Warning, QStringLiteral("warningBox"), title, text);
}

void MessageBoxes::inform(const QString& title, const QString& text, std::function<void()> closed) {
    const QMessageBox* const box =
        tell(QMessageBox::Information, QStringLiteral("informationBox"), title, text);
    if (closed) {
        connect(box, &QMessageBox::finished, this, std::move(closed), Qt::SingleShotConnection);
    }
}

QMessageBox* MessageBoxes::tell(QMessageBox::Icon icon, const QString& objectName,
                                const QString& title, const QString& text) {
    QMessageBox* const box = create(icon, title, text);
    box->setObjectName(objectName);
    box->setStandardButtons(QMessageBox::Ok);
    box->open();
    return box;
}

void MessageBoxes::ask(const QString& title, const QString& text,
                       std::function<void(bool yes)> answered) {
    QMessageBox* const box = create(QMessageBox::Question, title, text);
    box->setObjectName(QStringLiteral("questionBox"));
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    // A question may appear while the user is typing, so a stray key must not confirm it.
    box->setDefaultButton(QMessageBox::No);
    connect(
        box, &QMessageBox::finished, this,
        [answered = std::move(answered)](int result) { answered(result == QMessageBox::Yes); },
        Qt::SingleShotConnection);
    box->open();
}

QMessageBox* MessageBoxes::create(QMessageBox::Icon icon, const QString& title,
                                  const QString& text) {
    if (QMessageBox* const previous = m_open.value(title)) {
        previous->reject();
    }
    auto* const box =
        new QMessageBox(icon, title, boundedText(text), QMessageBox::NoButton, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    m_open.insert(title, box);
    return box;
}

} // namespace corvane
