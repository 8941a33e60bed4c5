#include "transport/SocketLine.h"

#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace corvane {

std::optional<double> socketRoundTripMilliseconds(qintptr socketDescriptor) {
    tcp_info info{};
    socklen_t size = sizeof(info);
    if (getsockopt(static_cast<int>(socketDescriptor), IPPROTO_TCP, TCP_INFO, &info, &size) != 0 ||
        info.tcpi_rtt == 0) {
        return std::nullopt;
    }
    return info.tcpi_rtt / 1000.0;
}

qint64 socketUnsentBytes(qintptr socketDescriptor) {
    int bytes = 0;
    return ioctl(static_cast<int>(socketDescriptor), SIOCOUTQNSD, &bytes) == 0 ? bytes : 0;
}

void limitSocketBacklog(qintptr socketDescriptor) {
    constexpr int kBytes = 32 * 1024;
    setsockopt(static_cast<int>(socketDescriptor), IPPROTO_TCP, TCP_NOTSENT_LOWAT, &kBytes,
               sizeof(kBytes));
}

} // namespace corvane
