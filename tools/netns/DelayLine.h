#pragma once

#include <chrono>
#include <deque>
#include <string>
#include <thread>
#include <vector>

namespace corvane::test {

/// A network interface of this thread's namespace that gives every IP packet routed into it back a
/// fixed time later, in order, on a thread of its own. What finds the line full is lost.
class DelayLine {
public:
    /// Throws std::system_error when the kernel gives no such interface.
    DelayLine(const std::string& interface, std::chrono::milliseconds delay);
    ~DelayLine();
    DelayLine(const DelayLine&) = delete;
    DelayLine& operator=(const DelayLine&) = delete;

private:
    using Clock = std::chrono::steady_clock;
    struct Packet {
        Clock::time_point due;
        std::vector<char> bytes;
    };

    /// Over a second of traffic at 20 Mbit/s.
    static constexpr size_t kCapacity = 2048;

    void run();
    void read();
    void write();

    const std::chrono::milliseconds m_delay;
    const int m_interface;
    const int m_end; ///< readable when the thread is to end
    std::deque<Packet> m_packets;
    std::thread m_thread;
};

} // namespace corvane::test
