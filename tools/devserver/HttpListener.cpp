#include "devserver/HttpListener.h"

#include <QHttpServerRequest>
#include <QMetaEnum>
#include <QTcpServer>
#include <QTcpSocket>

#include <utility>

namespace corvane::devserver {
namespace {

/// The base class shows an upgrade request before it hands the socket to the WebSocket side.
bool isUpgrade(const QHttpServerRequest& raw) {
    return raw.value("Upgrade").compare("websocket", Qt::CaseInsensitive) == 0;
}

Request recorded(const QHttpServerRequest& raw) {
    const auto method = QMetaEnum::fromType<QHttpServerRequest::Method>();
    return {.method =
                QString::fromLatin1(method.valueToKey(static_cast<int>(raw.method()))).toUpper(),
            .path = raw.url().path(),
            .authorization = raw.value("Authorization"),
            .contentType = raw.value("Content-Type"),
            .body = raw.body(),
            .remoteAddress = raw.remoteAddress()};
}

void write(const Answer& answer, QTcpSocket* socket) {
    socket->write("HTTP/1.1 " + QByteArray::number(answer.status) +
                  " \r\nContent-Type: " + answer.contentType + "\r\nContent-Length: " +
                  QByteArray::number(answer.body.size()) + "\r\n\r\n" + answer.body);
    socket->flush();
}

} // namespace

/// Caps what a connection may keep in memory: a request larger than the buffer never completes.
class HttpListener::BoundedTcpServer : public QTcpServer {
public:
    using QTcpServer::QTcpServer;

    /// Null when no connection comes from there any more.
    QTcpSocket* connectionFrom(const QHostAddress& address, quint16 port) const {
        for (const auto& socket : m_open) {
            if (socket && socket->peerPort() == port && socket->peerAddress() == address) {
                return socket;
            }
        }
        return nullptr;
    }

protected:
    void incomingConnection(qintptr descriptor) override {
        auto* socket = new QTcpSocket(this);
        socket->setSocketDescriptor(descriptor);
        socket->setReadBufferSize(kMaxMessageBytes);
        m_open.removeIf([](const auto& closed) { return !closed; });
        m_open.append(socket);
        addPendingConnection(socket);
    }

private:
    QList<QPointer<QTcpSocket>> m_open;
};

HttpExchange::HttpExchange(QTcpSocket* socket, std::shared_ptr<QHttpServerResponder> responder)
    : m_socket(socket), m_responder(std::move(responder)) {}

HttpExchange::~HttpExchange() = default;

void HttpExchange::send(const Answer& answer) const {
    if (m_responder) {
        m_responder->write(answer.body, answer.contentType,
                           static_cast<QHttpServerResponder::StatusCode>(answer.status));
    } else if (m_socket) {
        write(answer, m_socket);
    }
    if (answer.afterwards) {
        answer.afterwards();
    }
}

void HttpExchange::drop() const {
    if (m_socket) {
        m_socket->abort();
    }
}

HttpListener::HttpListener(Handler handler, QObject* parent)
    : QAbstractHttpServer(parent), m_handler(std::move(handler)),
      m_sockets(new BoundedTcpServer(this)) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    addWebSocketUpgradeVerifier(this, [](const QHttpServerRequest&) {
        return QHttpServerWebSocketUpgradeResponse::accept();
    });
#endif
}

bool HttpListener::start(const QHostAddress& address, quint16 port, QString& error) {
    if (!m_sockets->listen(address, port)) {
        error = m_sockets->errorString();
        return false;
    }
    bind(m_sockets);
    return true;
}

quint16 HttpListener::port() const {
    return m_sockets->serverPort();
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
bool HttpListener::handleRequest(const QHttpServerRequest& raw, QHttpServerResponder& responder) {
    if (!isUpgrade(raw)) {
        m_handler(recorded(raw), {m_sockets->connectionFrom(raw.remoteAddress(), raw.remotePort()),
                                  std::make_shared<QHttpServerResponder>(std::move(responder))});
    }
    return true;
}
#else
bool HttpListener::handleRequest(const QHttpServerRequest& raw, QTcpSocket* socket) {
    if (!isUpgrade(raw)) {
        m_handler(recorded(raw), {socket, nullptr});
    }
    return true;
}
#endif

} // namespace corvane::devserver
