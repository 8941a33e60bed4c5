#include "CreationRequests.h"

#include <utility>

namespace corvane {

void CreationRequests::abandon() {
    if (std::exchange(m_pending, false)) {
        ++m_abandoned;
    }
}

bool CreationRequests::takeAnswer() {
    if (m_abandoned > 0) {
        --m_abandoned;
        return false;
    }
    m_pending = false;
    return true;
}

} // namespace corvane
