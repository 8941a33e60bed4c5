#pragma once

#include "common/ByteVector.h"
#include "media/DecodedFrame.h"
#include "session/PictureRecovery.h"
#include "session/StreamMeter.h"

#include <QObject>

#include <memory>

namespace corvane {

class IVideoDecoder;

/// The viewing side of a running session: decodes the packets of the video channel and asks for a
/// key frame where one was lost. Main thread.
class ViewerStream : public QObject {
    Q_OBJECT

public:
    explicit ViewerStream(QObject* parent = nullptr);
    ~ViewerStream() override;

    /// A message of either channel, with its sender's counter, was opened. False when it is a
    /// repetition, or comes too late for anything.
    bool onMessage(uint64_t counter) {
        return m_recovery.onMessage(counter) || counter >= m_nextCounter;
    }

    /// The packet's picture, or null when none came out: it makes no sense, or it was overtaken by
    /// a later one. Opens the decoder on first use.
    std::shared_ptr<DecodedFrame> decode(uint64_t counter, ByteSpan packet);

    void stop();

Q_SIGNALS:
    void keyframeNeeded();

private:
    std::unique_ptr<IVideoDecoder> m_decoder;
    PictureRecovery m_recovery;
    StreamMeter m_meter;
    uint64_t m_nextCounter = 0; ///< the packets before it have had their turn
};

} // namespace corvane
