#pragma once

#include "devserver/HttpListener.h"

#include <QList>
#include <QObject>

#include <functional>

namespace corvane::devserver {

class Misbehaviour;
struct Reply;

/// The HTTP side: records every request, asks the handler for the answer and sends it, late,
/// replaced or not at all where a misbehaviour says so.
class HttpFront : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<Answer(const Request&)>;

    /// `misbehaviour` must outlive the front. `handler` is called on this object's thread.
    HttpFront(const Misbehaviour& misbehaviour, Handler handler, QObject* parent);

    /// Where requests come in, and out of which WebSocket connections on the same port come.
    HttpListener& listener() { return m_listener; }
    const HttpListener& listener() const { return m_listener; }

    /// The latest requests, oldest first.
    const QList<Request>& requests() const { return m_requests; }

private:
    void onRequest(const Request& request, const HttpExchange& exchange);
    void perform(const Reply& scripted, const Request& request, const HttpExchange& exchange);

    const Misbehaviour& m_misbehaviour;
    const Handler m_handler;
    HttpListener m_listener;
    QList<Request> m_requests;
    /// What delayed answers wait with: they have to be gone before the listener is.
    QObject m_delays;
};

} // namespace corvane::devserver
