#pragma once

#include "devserver/HttpMessages.h"

#include <QAbstractHttpServer>
#include <QHttpServerResponder>
#include <QPointer>

#include <functional>
#include <memory>

class QTcpServer;
class QTcpSocket;

namespace corvane::devserver {

/// One request's way back: answer once, now or later, or drop the connection. Does nothing once the
/// client has gone.
class HttpExchange {
public:
    /// Exactly one of the two is given, by the version of Qt.
    HttpExchange(QTcpSocket* socket, std::shared_ptr<QHttpServerResponder> responder);
    ~HttpExchange();

    void send(const Answer& answer) const;
    void drop() const;

private:
    QPointer<QTcpSocket> m_socket;
    std::shared_ptr<QHttpServerResponder> m_responder;
};

/// Qt's HTTP server behind one interface: it handed out the socket until 6.5 and a responder from
/// then on, and asks whom it may upgrade to a WebSocket from 6.8 on. The only place that knows.
class HttpListener : public QAbstractHttpServer {
    Q_OBJECT

public:
    using Handler = std::function<void(const Request&, const HttpExchange&)>;

    /// `handler` is called on this object's thread.
    HttpListener(Handler handler, QObject* parent);

    /// False when the port cannot be had; the reason goes to `error`.
    bool start(const QHostAddress& address, quint16 port, QString& error);

    quint16 port() const;

protected:
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    bool handleRequest(const QHttpServerRequest& raw, QHttpServerResponder& responder) override;
    void missingHandler(const QHttpServerRequest&, QHttpServerResponder&) override {}
#elif QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    bool handleRequest(const QHttpServerRequest& raw, QHttpServerResponder& responder) override;
    void missingHandler(const QHttpServerRequest&, QHttpServerResponder&&) override {}
#else
    bool handleRequest(const QHttpServerRequest& raw, QTcpSocket* socket) override;
    void missingHandler(const QHttpServerRequest&, QTcpSocket*) override {}
#endif

private:
    class BoundedTcpServer;

    const Handler m_handler;
    BoundedTcpServer* m_sockets;
};

} // namespace corvane::devserver
