#include "compare/Scene.h"

#include "common/MonotonicClock.h"
#include "x11/XcbReply.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace {

using namespace corvane;
using compare::Scene;

/// Reads the orders that have arrived. False when there will be no more.
bool obey(Scene& scene) {
    static const std::map<std::string, Scene::Work> kWorks{
        {"still", Scene::Work::Still}, {"clock", Scene::Work::Clock},
        {"type", Scene::Work::Type},   {"scroll", Scene::Work::Scroll},
        {"drag", Scene::Work::Drag},   {"terminal", Scene::Work::Terminal},
    };
    char bytes[64];
    const ssize_t size = read(STDIN_FILENO, bytes, sizeof bytes);
    if (size <= 0) {
        return false;
    }
    const std::string order(bytes, static_cast<size_t>(size) - 1); // one line at a time
    if (const auto work = kWorks.find(order); work != kWorks.end()) {
        scene.begin(work->second);
        std::puts(order.c_str());
        std::fflush(stdout);
    }
    return true;
}

void handleEvents(X11Connection& connection, Scene& scene) {
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection.handle())}) {
        const int type = event->response_type & 0x7f;
        if (type == XCB_KEY_PRESS) {
            scene.answerKey();
        } else if (type == XCB_EXPOSE) {
            scene.showAll();
        }
    }
}

} // namespace

// corvane-compare-scene: shows the scene on the display that DISPLAY names. Each line on standard
// input is the work to begin, and is repeated on standard output once it has begun.
int main() {
    const auto connection = X11Connection::open();
    if (!connection) {
        return EXIT_FAILURE;
    }
    Scene scene(*connection);
    pollfd watched[]{{xcb_get_file_descriptor(connection->handle()), POLLIN, 0},
                     {STDIN_FILENO, POLLIN, 0}};
    uint64_t due = monotonicMilliseconds();
    while (connection->isAlive()) {
        const uint64_t now = monotonicMilliseconds();
        int wait = -1;
        if (const int interval = scene.interval(); interval > 0) {
            if (now >= due) {
                scene.step();
                due = std::max(due + static_cast<uint64_t>(interval), now);
            }
            wait = static_cast<int>(due - std::min(due, now));
        }
        poll(watched, 2, wait);
        handleEvents(*connection, scene);
        if ((watched[1].revents & (POLLIN | POLLHUP)) != 0 && !obey(scene)) {
            break;
        }
    }
    return EXIT_SUCCESS;
}
