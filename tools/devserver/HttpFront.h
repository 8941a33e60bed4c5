#pragma once

#include "devserver/HttpMessages.h"

#include <QAbstractHttpServer>
#include <QList>

#include <functional>

class QTcpServer;

namespace corvane::devserver {

class Misbehaviour;
struct Reply;

/// The HTTP listener: records every request, asks the handler for the answer and writes it, unless
/// a misbehaviour delays, replaces or suppresses it. WebSocket upgrades on the same port are
/// delivered through `newWebSocketConnection`.
class HttpFront : public QAbstractHttpServer {
    Q_OBJECT

public:
    using Handler = std::function<Answer(const Request&)>;

    /// `misbehaviour` must outlive the front. `handler` is called on this object's thread.
    HttpFront(const Misbehaviour& misbehaviour, Handler handler, QObject* parent);

    /// False when the port is not available; the reason goes to `error`.
    bool start(const QHostAddress& address, quint16 port, QString& error);

    quint16 port() const;

    /// The latest requests, oldest first.
    const QList<Request>& requests() const { return m_requests; }

protected:
    bool handleRequest(const QHttpServerRequest& raw, QTcpSocket* socket) override;
    void missingHandler(const QHttpServerRequest& raw, QTcpSocket* socket) override;

private:
    void perform(const Reply& scripted, const Request& request, QTcpSocket* socket);

    const Misbehaviour& m_misbehaviour;
    Handler m_handler;
    QTcpServer* m_listener;
    QList<Request> m_requests;
};

} // namespace corvane::devserver
