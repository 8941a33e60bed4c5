#include "session/DecodeThread.h"

#include "common/MonotonicClock.h"
#include "media/IVideoDecoder.h"
#include "session/DecodeQueue.h"

#include <spdlog/spdlog.h>

#include <exception>
#include <utility>

namespace corvane {

namespace {

std::shared_ptr<DecodedFrame> decode(IVideoDecoder& decoder, ByteSpan packet) {
    try {
        if (decoder.isInitialized() || decoder.initialize(0, 0)) {
            return decoder.decode(packet.data(), packet.size(), monotonicMilliseconds());
        }
    } catch (const std::exception& exception) {
        spdlog::error("Exception during decoding: {}", exception.what());
    }
    return nullptr;
}

void decodeUntilClosed(DecodeQueue& queue, IVideoDecoder& decoder) {
    while (const auto packet = queue.waitForPacket()) {
        queue.finish(packet->counter, decode(decoder, packet->bytes));
    }
    if (decoder.isInitialized()) {
        decoder.shutdown();
    }
}

} // namespace

DecodeThread::DecodeThread(std::shared_ptr<DecodeQueue> queue,
                           std::unique_ptr<IVideoDecoder> decoder,
                           std::chrono::milliseconds endLimit)
    : m_queue(std::move(queue)), m_endLimit(endLimit) {
    std::packaged_task<void()> task(
        [waiting = m_queue, owned = std::move(decoder)] { decodeUntilClosed(*waiting, *owned); });
    m_ended = task.get_future();
    m_thread = std::thread(std::move(task));
}

DecodeThread::~DecodeThread() {
    m_queue->close();
    if (m_ended.wait_for(m_endLimit) == std::future_status::ready) {
        m_thread.join();
        return;
    }
    spdlog::warn("The decoder did not finish its packet within {} ms -- leaving its thread behind",
                 m_endLimit.count());
    m_thread.detach();
}

} // namespace corvane
