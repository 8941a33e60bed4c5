#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace corvane {

/// Runs short loops on the calling thread, with one helper thread that joins in.
///
/// The steps are handed out one by one, so a helper that wakes late, on a busy machine or one with
/// a single processor, takes fewer of them or none, and is never waited for before it has begun.
class SharedLoop {
public:
    /// Starts the helper. Where the system refuses a thread, the caller does all steps.
    SharedLoop();
    ~SharedLoop();
    SharedLoop(const SharedLoop&) = delete;
    SharedLoop& operator=(const SharedLoop&) = delete;

    /// Calls `step(i)` once for each i below `steps`, from both threads and in no fixed order, and
    /// returns when all calls have. `step` must not throw. One thread at a time may call.
    void run(int steps, const std::function<void(int)>& step);

private:
    void help();
    void takeSteps(const std::function<void(int)>& step);

    std::mutex m_mutex; ///< guards everything but the counter
    std::condition_variable m_offered;
    std::condition_variable m_helped;
    const std::function<void(int)>* m_step = nullptr; ///< null when there is nothing to join
    bool m_helping = false;
    bool m_closing = false;
    int m_steps = 0;             ///< fixed while `m_step` is set or the helper helps
    std::atomic<int> m_next = 0; ///< the first step that nobody has taken
    std::thread m_helper;
};

} // namespace corvane
