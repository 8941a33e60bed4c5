#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <thread>

namespace corvane {

class DecodeQueue;
class IVideoDecoder;

/// Runs a decoder on a thread of its own for as long as its queue is open, and opens it on first
/// use. Belongs to the main thread.
class DecodeThread {
public:
    /// No honest packet takes longer, on any machine that can show a session at all.
    static constexpr std::chrono::milliseconds kDefaultEndLimit{1000};

    DecodeThread(std::shared_ptr<DecodeQueue> queue, std::unique_ptr<IVideoDecoder> decoder,
                 std::chrono::milliseconds endLimit = kDefaultEndLimit);

    /// Closes the queue and waits for the end of the thread. Decoding cannot be interrupted, and
    /// killing a thread inside the decoder would leave its locks taken. So a thread that takes
    /// longer than `endLimit` is left behind, logged: it shares nothing but the closed queue, and
    /// ends after its packet.
    ~DecodeThread();

    DecodeThread(const DecodeThread&) = delete;
    DecodeThread& operator=(const DecodeThread&) = delete;

private:
    const std::shared_ptr<DecodeQueue> m_queue;
    const std::chrono::milliseconds m_endLimit;
    std::future<void> m_ended;
    std::thread m_thread;
};

} // namespace corvane
