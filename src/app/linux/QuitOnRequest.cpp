#include "app/QuitOnRequest.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace corvane {

namespace {

/// Written to by the signal handler, which may run on any thread, to wake the event loop.
int requestDescriptor = -1;

void onRequest(int) {
    const int error = errno;
    const uint64_t one = 1;
    [[maybe_unused]] const auto written = write(requestDescriptor, &one, sizeof(one));
    errno = error;
}

/// A program started with a signal ignored (nohup) keeps ignoring it.
void handleUnlessIgnored(int request) {
    struct sigaction action {};
    if (sigaction(request, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) {
        action.sa_handler = onRequest;
        action.sa_flags = SA_RESTART;
        sigaction(request, &action, nullptr);
    }
}

} // namespace

void quitOnSystemRequest(QCoreApplication& application) {
    requestDescriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (requestDescriptor < 0) {
        return;
    }
    auto* const notifier =
        new QSocketNotifier(requestDescriptor, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [notifier] {
        notifier->setEnabled(false);
        // A polite quit would ask the window, which keeps itself open during a session.
        QCoreApplication::exit();
    });
    for (const int request : {SIGTERM, SIGINT, SIGHUP}) {
        handleUnlessIgnored(request);
    }
}

} // namespace corvane
