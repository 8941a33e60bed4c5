#include "QuitOnRequest.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace corvane {

void quitOnSystemRequest(QCoreApplication& application) {
    sigset_t requests;
    sigemptyset(&requests);
    for (const int request : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&requests, request);
    }
    // Blocked before any other thread starts: threads inherit the mask.
    const int descriptor = signalfd(-1, &requests, SFD_CLOEXEC | SFD_NONBLOCK);
    if (descriptor < 0 || pthread_sigmask(SIG_BLOCK, &requests, nullptr) != 0) {
        return;
    }
    auto* const notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [descriptor] {
        signalfd_siginfo request;
        if (read(descriptor, &request, sizeof(request)) == sizeof(request)) {
            QCoreApplication::quit();
        }
    });
}

} // namespace corvane
