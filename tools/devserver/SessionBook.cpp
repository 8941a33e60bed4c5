#include "devserver/SessionBook.h"

#include <QUuid>

namespace corvane::devserver {
namespace {

constexpr qsizetype kMaxSessions = 1000;

} // namespace

const Session& SessionBook::open(const QString& masterId, const QString& targetId) {
    if (m_order.size() >= kMaxSessions) {
        m_sessions.remove(m_order.takeFirst());
    }
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_order.append(id);
    return *m_sessions.insert(id, {id, masterId, targetId, QStringLiteral("pending")});
}

Session* SessionBook::find(const QString& sessionId) {
    const auto session = m_sessions.find(sessionId);
    return session == m_sessions.end() ? nullptr : &*session;
}

bool SessionBook::connects(const QString& sessionId, const QString& one,
                           const QString& other) const {
    const auto session = m_sessions.find(sessionId);
    return session != m_sessions.end() && one != other && session->involves(one) &&
           session->involves(other);
}

} // namespace corvane::devserver
