#include "QuitOnRequest.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace corvane {

namespace {

int requestDescriptor = -1;

// A handler, not a blocked signal: threads that exist already would not share the mask.
void onRequest(int) {
    const uint64_t one = 1;
    [[maybe_unused]] const auto written = write(requestDescriptor, &one, sizeof(one));
}

} // namespace

void quitOnSystemRequest(QCoreApplication& application) {
    requestDescriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (requestDescriptor < 0) {
        return;
    }
    auto* const notifier =
        new QSocketNotifier(requestDescriptor, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [] {
        uint64_t requests = 0;
        if (read(requestDescriptor, &requests, sizeof(requests)) == sizeof(requests)) {
            // Unlike `quit`, asks no window: the main one stays open to end a session.
            QCoreApplication::exit();
        }
    });
    struct sigaction action = {};
    action.sa_handler = onRequest;
    action.sa_flags = SA_RESTART;
    for (const int request : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(request, &action, nullptr);
    }
}

} // namespace corvane
