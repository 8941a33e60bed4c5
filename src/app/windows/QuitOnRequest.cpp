#include "QuitOnRequest.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <windows.h>

namespace corvane {

namespace {

/// Waits for the end of the user's log-on session, which every window is told of.
class SessionEndFilter : public QAbstractNativeEventFilter {
public:
    bool nativeEventFilter(const QByteArray&, void* message, qintptr* result) override {
        const auto* const event = static_cast<const MSG*>(message);
        const bool ends = event->message == WM_ENDSESSION && event->wParam != FALSE;
        if (ends) {
            // Unlike `quit`, asks no window: the main one stays open to end a session.
            QCoreApplication::exit();
            *result = 0;
        }
        return ends;
    }
};

} // namespace

void quitOnSystemRequest(QCoreApplication& application) {
    static SessionEndFilter filter;
    application.installNativeEventFilter(&filter);
}

} // namespace corvane
