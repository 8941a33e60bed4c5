#include "devserver/Misbehaviour.h"

namespace corvane::devserver {

void Misbehaviour::setReply(const QString& pathSuffix, const Reply& reply) {
    m_replies.insert(pathSuffix, reply);
}

std::optional<Reply> Misbehaviour::replyTo(const QString& path) const {
    std::optional<Reply> found;
    qsizetype longest = -1;
    for (auto rule = m_replies.begin(); rule != m_replies.end(); ++rule) {
        if (path.endsWith(rule.key()) && rule.key().size() > longest) {
            longest = rule.key().size();
            found = rule.value();
        }
    }
    return found;
}

void Misbehaviour::setStateText(const QString& operation, const QString& state) {
    m_stateTexts.insert(operation, state);
}

QString Misbehaviour::stateText(const QString& operation, const QString& proper) const {
    const QString text = m_stateTexts.value(operation);
    return text.isEmpty() ? proper : text;
}

QString Misbehaviour::sessionId(const QString& proper) const {
    return m_sessionId.isEmpty() ? proper : m_sessionId;
}

} // namespace corvane::devserver
