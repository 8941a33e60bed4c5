#include "compare/Line.h"

#include <fcntl.h>
#include <unistd.h>

namespace corvane::compare {

Line::Line(const test::Conditions& conditions)
    : m_network(conditions), m_between(open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC)) {
    for (const test::NetworkPlace* place : {&m_viewer, &m_shared, &m_server}) {
        m_network.attach(place->process());
    }
    if (obstacle().isEmpty()) {
        m_server.enter();
    }
}

Line::~Line() {
    if (m_between >= 0) {
        close(m_between);
    }
}

} // namespace corvane::compare
