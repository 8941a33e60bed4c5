#include "transport/P2PTransport.h"

namespace corvane {

std::unique_ptr<IPeerTransport> createPeerTransport() {
    return std::make_unique<P2PTransport>();
}

} // namespace corvane
