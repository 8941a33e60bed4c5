#pragma once

#include "common/ByteVector.h"
#include "media/DecodedFrame.h"
#include "session/DecodeQueue.h"
#include "session/DecodeThread.h"
#include "session/PictureRecovery.h"
#include "session/StreamMeter.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace corvane {

class IVideoDecoder;

/// The viewer's side of a running session: has the packets of the video channel decoded on another
/// thread and requests a key frame when one is lost. Main thread.
class ViewerStream : public QObject {
    Q_OBJECT

public:
    explicit ViewerStream(QObject* parent = nullptr);

    /// Takes ownership of the decoder, which is used on the decode thread only.
    ViewerStream(std::unique_ptr<IVideoDecoder> decoder, DecodeQueue::Limits limits,
                 std::chrono::milliseconds endLimit, QObject* parent = nullptr);
    ~ViewerStream() override;

    /// A message of either channel was opened; `counter` is its sender's. False when it is a
    /// repetition or too late to be of any use.
    bool onMessage(uint64_t counter) {
        return m_recovery.onMessage(counter) || counter >= m_nextCounter;
    }

    /// Hands a packet to the decoder. Every packet leads to exactly one of the three signals about
    /// it, unless the stream is stopped before.
    void receive(uint64_t counter, ByteVector packet);

    /// Ends the stream without waiting for the decoder. No signal is emitted afterwards.
    void stop();

Q_SIGNALS:
    void keyframeNeeded();
    void pictureDecoded(std::shared_ptr<corvane::DecodedFrame> picture);
    /// A packet's picture gave way to a newer one while this thread was busy.
    void pictureOvertaken();
    /// A packet yields no picture: it is invalid, a later one has overtaken it, or the decoder
    /// could not keep up.
    void packetDropped();

    /// Emitted on the decode thread: wakes the main thread.
    void resultsWaiting(QPrivateSignal);

private:
    bool enqueue(DecodeQueue::Packet packet, bool keyframe);
    void emptyQueue();
    void deliver();

    PictureRecovery m_recovery;
    StreamMeter m_meter;
    uint64_t m_nextCounter = 0; ///< earlier packets are not decoded any more
    bool m_stopped = false;
    bool m_awaitingKeyframe = false; ///< nothing else can be decoded
    const std::shared_ptr<DecodeQueue> m_queue;
    DecodeThread m_thread;
};

} // namespace corvane
