#include "transport/SocketRoundTrip.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
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

} // namespace corvane
