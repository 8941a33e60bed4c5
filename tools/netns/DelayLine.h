#pragma once

#include <chrono>
#include <deque>
#include <string>
#include <thread>
#include <vector>

namespace corvane::test {

/// A network interface in this thread's namespace that returns every IP packet routed into it a
/// fixed time later, in order, on a thread of its own. Packets that find the line full are lost.
class DelayLine {
public:
    /// Throws std::system_error when the kernel cannot provide such an interface.
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

    /// More than a second of traffic at 20 Mbit/s.
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
