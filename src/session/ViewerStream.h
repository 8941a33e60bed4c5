#pragma once

#include "common/ByteVector.h"
#include "media/DecodedFrame.h"
#include "session/PictureRecovery.h"
#include "session/StreamMeter.h"

#include <QObject>

#include <memory>

namespace corvane {

class IVideoDecoder;

/// The viewer's side of a running session: decodes the packets of the video channel and requests a
/// key frame when one is lost. Main thread.
class ViewerStream : public QObject {
    Q_OBJECT

public:
    explicit ViewerStream(QObject* parent = nullptr);
    ~ViewerStream() override;

    /// A message of either channel was opened; `counter` is its sender's. False when it is a
    /// repetition or too late to be of any use.
    bool onMessage(uint64_t counter) {
        return m_recovery.onMessage(counter) || counter >= m_nextCounter;
    }

    /// The packet's picture, or null when there is none: the packet is invalid, or a later one has
    /// overtaken it. Opens the decoder on first use.
    std::shared_ptr<DecodedFrame> decode(uint64_t counter, ByteSpan packet);

    void stop();

Q_SIGNALS:
    void keyframeNeeded();

private:
    std::unique_ptr<IVideoDecoder> m_decoder;
    PictureRecovery m_recovery;
    StreamMeter m_meter;
    uint64_t m_nextCounter = 0; ///< earlier packets are not decoded any more
};

} // namespace corvane
