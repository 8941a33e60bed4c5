#pragma once

#include "DocumentedKeys.h"
#include "common/ByteViews.h"
#include "crypto/AesGcmCipher.h"
#include "session/RecordingTransport.h"
#include "session/SessionDataPlane.h"

#include <memory>
#include <span>

namespace corvane::docs {

inline ByteVector part(const ByteVector& bytes, size_t begin, size_t count = std::dynamic_extent) {
    return copyBytes(ByteSpan(bytes).subspan(begin, count));
}

/// The documented pointer move.
inline InputEvent pointerMove() {
    InputEvent event;
    event.type = InputEventType::MouseMove;
    event.timestampMs = 123'456;
    event.x = 0.25;
    event.y = 0.5;
    return event;
}

/// One side of the documented session, connected to a transport that keeps what it sends.
class RecordingSession {
public:
    explicit RecordingSession(SessionRole role = SessionRole::Master)
        : plane(role, std::make_unique<AesGcmCipher>(sessionKey(), sessionBaseIv())) {
        plane.setTransport(&transport);
        plane.setState(SessionState::Connected);
    }

    /// Creates the services, and the viewer's stream.
    void start() { plane.startStreaming({}, {}); }

    /// The plaintext of a message that was sent; empty if there is none.
    ByteVector sent(size_t index = 0) const {
        return index < transport.sent.size()
                   ? m_peer.decrypt(transport.sent[index].data(), transport.sent[index].size())
                   : ByteVector();
    }

    void receive(const ByteVector& plaintext, ChannelType channel = ChannelType::Control) {
        plane.receive(channel, viewOf(m_peer.encrypt(plaintext)).toByteArray());
    }

    test::RecordingTransport transport;
    SessionDataPlane plane;

private:
    AesGcmCipher m_peer{sessionKey(), sessionBaseIv()};
};

} // namespace corvane::docs
