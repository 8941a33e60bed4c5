#include "transport/SocketLine.h"

#include <winsock2.h>
// Needs the types of the header above.
#include <mstcpip.h>

namespace corvane {

std::optional<double> socketRoundTripMilliseconds(qintptr socketDescriptor) {
    DWORD version = 0;
    TCP_INFO_v0 info{};
    DWORD size = 0;
    if (WSAIoctl(static_cast<SOCKET>(socketDescriptor), SIO_TCP_INFO, &version, sizeof(version),
                 &info, sizeof(info), &size, nullptr, nullptr) != 0 ||
        info.RttUs == 0) {
        return std::nullopt;
    }
    return info.RttUs / 1000.0;
}

qint64 socketUnsentBytes(qintptr) {
    return 0;
}

void limitSocketBacklog(qintptr) {
    // Windows sizes the backlog by the measured line itself.
}

} // namespace corvane
