#pragma once

#include <QHash>
#include <QList>
#include <QString>

namespace corvane::devserver {

/// A session record. `state` is the text the server reports.
struct Session {
    QString id;
    QString masterId;
    QString targetId;
    QString state;

    bool involves(const QString& clientId) const {
        return clientId == masterId || clientId == targetId;
    }
};

/// The latest sessions; the oldest is dropped when the book is full.
class SessionBook {
public:
    /// Creates a pending session with a new ID. The reference is valid until the next `open`.
    const Session& open(const QString& masterId, const QString& targetId);

    /// Null when unknown. Valid until the next `open`.
    Session* find(const QString& sessionId);

    /// True when a session with that ID runs between these two clients, in either direction.
    bool connects(const QString& sessionId, const QString& one, const QString& other) const;

private:
    QHash<QString, Session> m_sessions;
    QList<QString> m_order;
};

} // namespace corvane::devserver
