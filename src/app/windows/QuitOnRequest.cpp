#include "app/QuitOnRequest.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

#include <thread>

#include <windows.h>

namespace corvane {

namespace {

bool endsSession(UINT message, WPARAM word) {
    return message == WM_ENDSESSION && word != FALSE;
}

/// Ends the event loop when the user logs off, which the system tells every window.
class SessionEndFilter : public QAbstractNativeEventFilter {
public:
    bool nativeEventFilter(const QByteArray&, void* message, qintptr* result) override {
        const auto* const event = static_cast<const MSG*>(message);
        const bool ends = endsSession(event->message, event->wParam);
        if (ends) {
            // Unlike `quit`, asks no window: the main one stays open to end a session.
            QCoreApplication::exit();
            *result = 0;
        }
        return ends;
    }
};

/// Window procedure of a window that makes the system wait for the end of this process.
LRESULT CALLBACK holdSystem(HWND window, UINT message, WPARAM word, LPARAM data) {
    if (!endsSession(message, word)) {
        return DefWindowProcW(window, message, word, data);
    }
    if (auto* const application = QCoreApplication::instance(); application != nullptr) {
        QMetaObject::invokeMethod(application, [] { QCoreApplication::exit(); });
    }
    constexpr DWORD kTimeoutMs = 5000; // the system's own, after which it ends the process anyway
    WaitForSingleObject(GetCurrentProcess(), kTimeoutMs);
    return 0;
}

/// The system ends a process as soon as all of its windows have answered. The event loop's own
/// windows have to answer before the loop can end, so a window on another thread holds its answer
/// back until the process is gone.
void runHoldingWindow() {
    WNDCLASSW type = {};
    type.lpfnWndProc = holdSystem;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = L"CorvaneSessionEnd";
    RegisterClassW(&type);
    CreateWindowExW(0, type.lpszClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                    type.hInstance, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
}

} // namespace

void quitOnSystemRequest(QCoreApplication& application) {
    static SessionEndFilter filter;
    application.installNativeEventFilter(&filter);
    std::thread(runHoldingWindow).detach();
}

} // namespace corvane
