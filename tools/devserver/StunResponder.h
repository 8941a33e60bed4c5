#pragma once

#include <QHostAddress>
#include <QObject>

class QUdpSocket;

namespace corvane::devserver {

/// Answers STUN Binding requests over IPv4 with the sender's address as XOR-MAPPED-ADDRESS.
class StunResponder : public QObject {
    Q_OBJECT

public:
    explicit StunResponder(QObject* parent);

    bool start(const QHostAddress& address, quint16 port);

    /// 0 while not started.
    quint16 port() const;

private:
    void onReadable();

    QUdpSocket* m_socket;
};

} // namespace corvane::devserver
