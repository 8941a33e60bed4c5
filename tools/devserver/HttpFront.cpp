#include "devserver/HttpFront.h"

#include "devserver/Misbehaviour.h"

#include <QHttpServerRequest>
#include <QMetaEnum>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

namespace corvane::devserver {
namespace {

/// Limits what a connection may keep in memory: a request larger than the buffer never completes.
class BoundedTcpServer : public QTcpServer {
public:
    using QTcpServer::QTcpServer;

protected:
    void incomingConnection(qintptr descriptor) override {
        auto* socket = new QTcpSocket(this);
        socket->setSocketDescriptor(descriptor);
        socket->setReadBufferSize(kMaxMessageBytes);
        addPendingConnection(socket);
    }
};

/// The base class delivers an upgrade request before it hands the socket to the WebSocket side.
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
    if (answer.afterwards) {
        answer.afterwards();
    }
}

void writeLater(int delayMs, const Answer& answer, QTcpSocket* socket) {
    if (delayMs <= 0) {
        write(answer, socket);
        return;
    }
    QTimer::singleShot(delayMs, socket, [answer, socket] { write(answer, socket); });
}

} // namespace

HttpFront::HttpFront(const Misbehaviour& misbehaviour, Handler handler, QObject* parent)
    : QAbstractHttpServer(parent), m_misbehaviour(misbehaviour), m_handler(std::move(handler)),
      m_listener(new BoundedTcpServer(this)) {}

bool HttpFront::start(const QHostAddress& address, quint16 port, QString& error) {
    if (!m_listener->listen(address, port)) {
        error = m_listener->errorString();
        return false;
    }
    bind(m_listener);
    return true;
}

quint16 HttpFront::port() const {
    return m_listener->serverPort();
}

bool HttpFront::handleRequest(const QHttpServerRequest& raw, QTcpSocket* socket) {
    if (isUpgrade(raw)) {
        return true;
    }
    const Request request = recorded(raw);
    m_requests.append(request);
    if (m_requests.size() > kMaxLogEntries) {
        m_requests.removeFirst();
    }
    perform(m_misbehaviour.replyTo(request.path).value_or(Reply{}), request, socket);
    return true;
}

void HttpFront::missingHandler(const QHttpServerRequest&, QTcpSocket*) {}

void HttpFront::perform(const Reply& scripted, const Request& request, QTcpSocket* socket) {
    if (scripted.dropConnection) {
        QTimer::singleShot(qMax(0, scripted.delayMs), socket, [socket] { socket->abort(); });
    } else if (scripted.status || scripted.body) {
        writeLater(scripted.delayMs,
                   {.status = scripted.status.value_or(200), .body = scripted.body.value_or("")},
                   socket);
    } else {
        writeLater(scripted.delayMs, m_handler(request), socket);
    }
}

} // namespace corvane::devserver
