#include "devserver/HttpFront.h"

#include "devserver/Misbehaviour.h"

#include <QTimer>

#include <utility>

namespace corvane::devserver {

HttpFront::HttpFront(const Misbehaviour& misbehaviour, Handler handler, QObject* parent)
    : QObject(parent), m_misbehaviour(misbehaviour), m_handler(std::move(handler)),
      m_listener([this](const Request& request,
                        const HttpExchange& exchange) { onRequest(request, exchange); },
                 nullptr) {}

void HttpFront::onRequest(const Request& request, const HttpExchange& exchange) {
    m_requests.append(request);
    if (m_requests.size() > kMaxLogEntries) {
        m_requests.removeFirst();
    }
    perform(m_misbehaviour.replyTo(request.path).value_or(Reply{}), request, exchange);
}

void HttpFront::perform(const Reply& scripted, const Request& request,
                        const HttpExchange& exchange) {
    if (scripted.dropConnection) {
        // Never under the request itself, whose connection the server still holds.
        QTimer::singleShot(qMax(0, scripted.delayMs), &m_delays, [exchange] { exchange.drop(); });
        return;
    }
    const Answer answer =
        scripted.status || scripted.body
            ? Answer{.status = scripted.status.value_or(200), .body = scripted.body.value_or("")}
            : m_handler(request);
    if (scripted.delayMs <= 0) {
        exchange.send(answer);
    } else {
        QTimer::singleShot(scripted.delayMs, &m_delays,
                           [exchange, answer] { exchange.send(answer); });
    }
}

} // namespace corvane::devserver
