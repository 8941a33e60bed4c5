#pragma once

#include "IPeerTransport.h"

#include <QStringList>

namespace corvane::test {

/// Records what it is told in `calls`, which may outlive it; the test emits its signals.
class ScriptedPeerTransport : public IPeerTransport {
    Q_OBJECT

public:
    explicit ScriptedPeerTransport(QStringList& calls) : m_calls(calls) {}

    bool connect(const std::string&, uint16_t) override { return note(QStringLiteral("offer")); }
    void startAsAnswerer() override { note(QStringLiteral("answer")); }
    void disconnect() override { note(QStringLiteral("disconnect")); }
    bool isConnected() const override { return false; }
    bool send(ChannelType, const uint8_t*, size_t) override { return false; }
    qint64 bytesQueued() const override { return 0; }
    bool waitUntilQueued(qint64) override { return false; }
    std::optional<double> roundTripMilliseconds() const override { return std::nullopt; }
    void setRemoteDescription(const QString& sdp, const QString& type) override {
        note(QStringLiteral("description %1 %2").arg(type, sdp));
    }
    void addRemoteCandidate(const QString& candidate, const QString& mid) override {
        note(QStringLiteral("candidate %1 %2").arg(candidate, mid));
    }

private:
    bool note(const QString& call) {
        m_calls.append(call);
        return true;
    }

    QStringList& m_calls;
};

} // namespace corvane::test
