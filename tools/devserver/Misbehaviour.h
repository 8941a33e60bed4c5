#pragma once

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>

#include <optional>

namespace corvane::devserver {

/// A scripted fault in place of a proper answer. With no status, body or dropped connection, the
/// proper answer is given, only later. Otherwise the request has no effect on the server's state.
struct Reply {
    int delayMs = 0;
    std::optional<int> status = std::nullopt;      ///< 200 when only a body is scripted
    std::optional<QByteArray> body = std::nullopt; ///< sent unchanged, JSON or not
    bool dropConnection = false;                   ///< close the socket instead of answering
};

/// The faults that the REST and signaling sides have been told to show. They take effect with the
/// next request or message and last until cleared.
class Misbehaviour {
public:
    /// Applies to every request whose path ends in `pathSuffix`; replaces an earlier rule for the
    /// same suffix. If several match, the longest suffix wins.
    void setReply(const QString& pathSuffix, const Reply& reply);
    void clearReply(const QString& pathSuffix) { m_replies.remove(pathSuffix); }
    std::optional<Reply> replyTo(const QString& path) const;

    /// Every AUTH message is answered with AUTH_FAIL.
    void setRejectAuth(bool reject) { m_rejectAuth = reject; }
    bool rejectsAuth() const { return m_rejectAuth; }

    /// No description or candidate reaches the other peer, so that the two never meet directly.
    void setWithholdIce(bool withhold) { m_withholdIce = withhold; }
    bool withholdsIce() const { return m_withholdIce; }

    /// `state` text in the answers to a session's `operation`: "handshake-ack", "complete" or
    /// "close". An empty text restores the true one.
    void setStateText(const QString& operation, const QString& state);
    QString stateText(const QString& operation, const QString& proper) const;

    /// `session_id` in the answers to those three operations. An empty ID restores the true one.
    void setSessionId(const QString& sessionId) { m_sessionId = sessionId; }
    QString sessionId(const QString& proper) const;

    /// Restores proper behaviour in everything above.
    void clear() { *this = {}; }

private:
    QHash<QString, Reply> m_replies;
    QMap<QString, QString> m_stateTexts;
    QString m_sessionId;
    bool m_rejectAuth = false;
    bool m_withholdIce = false;
};

} // namespace corvane::devserver
