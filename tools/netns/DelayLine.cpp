#include "netns/DelayLine.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/if_tun.h>
#include <net/if.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <system_error>
#include <unistd.h>

namespace corvane::test {

namespace {

int openInterface(const std::string& name) {
    const int device = open("/dev/net/tun", O_RDWR | O_NONBLOCK | O_CLOEXEC);
    ifreq request{};
    request.ifr_flags = IFF_TUN | IFF_NO_PI;
    name.copy(request.ifr_name, IFNAMSIZ - 1);
    if (device < 0 || ioctl(device, TUNSETIFF, &request) != 0) {
        const std::error_code reason(errno, std::generic_category());
        close(device);
        throw std::system_error(reason, "/dev/net/tun");
    }
    return device;
}

} // namespace

DelayLine::DelayLine(const std::string& interface, std::chrono::milliseconds delay)
    : m_delay(delay), m_interface(openInterface(interface)), m_end(eventfd(0, EFD_CLOEXEC)),
      m_thread([this] { run(); }) {}

DelayLine::~DelayLine() {
    eventfd_write(m_end, 1);
    m_thread.join();
    close(m_end);
    close(m_interface);
}

void DelayLine::run() {
    std::array<pollfd, 2> watched{{{m_interface, POLLIN, 0}, {m_end, POLLIN, 0}}};
    while (watched[1].revents == 0) {
        timespec wait{};
        if (!m_packets.empty()) {
            const auto left = std::max<Clock::duration>(m_packets.front().due - Clock::now(), {});
            wait.tv_sec = std::chrono::floor<std::chrono::seconds>(left).count();
            wait.tv_nsec = (left % std::chrono::seconds(1)).count();
        }
        ppoll(watched.data(), watched.size(), m_packets.empty() ? nullptr : &wait, nullptr);
        read();
        write();
    }
}

void DelayLine::read() {
    std::array<char, 65536> bytes;
    ssize_t size = 0;
    while ((size = ::read(m_interface, bytes.data(), bytes.size())) > 0) {
        if (m_packets.size() < kCapacity) {
            m_packets.push_back({Clock::now() + m_delay, {bytes.data(), bytes.data() + size}});
        }
    }
}

void DelayLine::write() {
    while (!m_packets.empty() && m_packets.front().due <= Clock::now()) {
        const auto& bytes = m_packets.front().bytes;
        // Like any other interface, this one may lose a packet.
        [[maybe_unused]] const auto written = ::write(m_interface, bytes.data(), bytes.size());
        m_packets.pop_front();
    }
}

} // namespace corvane::test
