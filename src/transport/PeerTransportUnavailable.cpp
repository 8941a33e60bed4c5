#include "transport/IPeerTransport.h"

namespace corvane {

std::unique_ptr<IPeerTransport> createPeerTransport() {
    return nullptr;
}

} // namespace corvane
