#pragma once

#include "devserver/FrameScanner.h"

#include <QByteArray>
#include <QObject>
#include <QString>

class QTcpSocket;

namespace corvane::devserver {

/// One connection to the relay node: reads the join frame, then forwards bytes to its partner no
/// faster than the partner takes them. What cannot be forwarded yet stays unread in the socket,
/// whose buffer is bounded, so that TCP's own back-pressure slows the sender down.
class RelayPeer : public QObject {
    Q_OBJECT

public:
    /// Takes ownership of the connected socket.
    RelayPeer(QTcpSocket* socket, QObject* parent);

    /// Empty until the join frame has arrived.
    QString sessionId() const { return m_sessionId; }

    /// Starts forwarding to `partner`, beginning with what has already arrived. Call it on both
    /// sides.
    void pairWith(RelayPeer* partner);
    RelayPeer* partner() const { return m_partner; }

    /// While stalled, nothing is read from the socket.
    void setStalled(bool stalled);

    /// Sends raw bytes to this peer.
    void write(const QByteArray& bytes);

    /// Ends the pairing; first, what a closed peer had sent is passed on.
    void part();

    /// Closes once everything written has been sent.
    void close();

    /// Closes at once; what has not been forwarded or sent yet is lost.
    void abort();

Q_SIGNALS:
    void joined();
    void forwarded(qint64 bytes);
    void frameStarted(int channel, qint64 payloadBytes);
    void gone(); ///< the connection has ended; a slot may call `deleteLater`, but not delete

private:
    void pump(qint64 highWater);
    bool mayRead(qint64 highWater) const;
    bool readHeader();
    bool readPayload();
    bool finishJoin();
    void forward(const char* bytes, qint64 count);

    QTcpSocket* m_socket;
    RelayPeer* m_partner = nullptr;
    FrameScanner m_scanner;
    QByteArray m_chunk;
    QByteArray m_join;
    QString m_sessionId;
    bool m_stalled = false;
    bool m_pumping = false;
    bool m_aborted = false;
};

} // namespace corvane::devserver
