#pragma once

#include <QHostAddress>
#include <QList>
#include <QObject>

#include <functional>

class QUdpSocket;

namespace corvane::devserver {

/// Answers STUN Binding requests over IPv4 with the sender's address as XOR-MAPPED-ADDRESS, or as
/// scripted.
class StunResponder : public QObject {
    Q_OBJECT

public:
    /// The datagrams that answer a request from `senderPort`.
    using Script = std::function<QList<QByteArray>(const QByteArray& request, quint16 senderPort)>;

    explicit StunResponder(QObject* parent);

    bool start(const QHostAddress& address, quint16 port);

    /// 0 while not started.
    quint16 port() const;

    /// Takes effect with the next request; an empty script restores proper answers.
    void setScript(Script script) { m_script = std::move(script); }

    /// The answer that tells the sender of `request` that it was seen at this address and port.
    static QByteArray bindingSuccess(const QByteArray& request, const QHostAddress& address,
                                     quint16 port);

private:
    void onReadable();

    QUdpSocket* m_socket;
    Script m_script;
};

} // namespace corvane::devserver
