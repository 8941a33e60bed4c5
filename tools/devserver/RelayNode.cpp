#include "devserver/RelayNode.h"

#include "devserver/RelayPeer.h"

#include <QTcpServer>
#include <QTcpSocket>

namespace corvane::devserver {
namespace {

constexpr qsizetype kMaxConnections = 256;

} // namespace

RelayNode::RelayNode(QObject* parent) : QObject(parent), m_listener(new QTcpServer(this)) {
    connect(m_listener, &QTcpServer::newConnection, this, &RelayNode::onNewConnection);
}

RelayNode::~RelayNode() {
    for (RelayPeer* peer : m_peers) {
        peer->disconnect(this);
    }
}

bool RelayNode::start(const QHostAddress& address, quint16 port, QString& error) {
    if (!m_listener->listen(address, port)) {
        error = m_listener->errorString();
        return false;
    }
    m_address = address;
    m_port = m_listener->serverPort();
    return true;
}

int RelayNode::joinedPeers(const QString& sessionId) const {
    return static_cast<int>(m_sessions.value(sessionId).size());
}

void RelayNode::stall() {
    setStalled(true);
}

void RelayNode::resume() {
    setStalled(false);
}

void RelayNode::dropConnections() {
    const QList<RelayPeer*> peers = m_peers;
    for (RelayPeer* peer : peers) {
        peer->abort();
    }
}

void RelayNode::refuseConnections() {
    m_listener->close();
}

bool RelayNode::acceptConnections() {
    return m_listener->isListening() || m_listener->listen(m_address, m_port);
}

void RelayNode::inject(const QString& sessionId, const QByteArray& bytes) {
    for (RelayPeer* peer : m_sessions.value(sessionId)) {
        peer->write(bytes);
    }
}

void RelayNode::onNewConnection() {
    while (QTcpSocket* socket = m_listener->nextPendingConnection()) {
        ++m_accepted;
        if (m_peers.size() >= kMaxConnections) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        auto* peer = new RelayPeer(socket, this);
        m_peers.append(peer);
        connect(peer, &RelayPeer::joined, this, [this, peer] { onJoined(peer); });
        connect(peer, &RelayPeer::gone, this, [this, peer] { onGone(peer); });
        connect(peer, &RelayPeer::forwarded, this,
                [this](qint64 bytes) { m_bytesForwarded += bytes; });
        connect(peer, &RelayPeer::frameStarted, this, &RelayNode::onFrameStarted);
        peer->setStalled(m_stalled);
    }
}

void RelayNode::onJoined(RelayPeer* peer) {
    QList<RelayPeer*>& peers = m_sessions[peer->sessionId()];
    if (peers.size() == 2) {
        peer->abort();
        return;
    }
    peers.append(peer);
    if (peers.size() == 2) {
        peers[0]->pairWith(peers[1]);
        peers[1]->pairWith(peers[0]);
    }
}

void RelayNode::onFrameStarted(int channel, qint64 payloadBytes) {
    constexpr int kVideoChannel = 1;
    if (channel == kVideoChannel) {
        ++m_videoTotals.frames;
        m_videoTotals.bytes += payloadBytes;
    }
}

void RelayNode::onGone(RelayPeer* peer) {
    peer->disconnect(this);
    m_peers.removeOne(peer);
    if (m_sessions.value(peer->sessionId()).contains(peer)) {
        m_sessions.remove(peer->sessionId());
    }
    RelayPeer* partner = peer->partner();
    peer->part();
    if (partner) {
        partner->close();
    }
    peer->deleteLater();
}

void RelayNode::setStalled(bool stalled) {
    m_stalled = stalled;
    const QList<RelayPeer*> peers = m_peers;
    for (RelayPeer* peer : peers) {
        peer->setStalled(stalled);
    }
}

} // namespace corvane::devserver
