#include "ui/WindowRenewal.h"

#include <QWidget>
#include <QWindow>

namespace corvane {

void renewWindow(QWidget& window, const std::function<void()>& change) {
    if (!window.isVisible()) {
        change();
        return;
    }
    const bool active = window.isActiveWindow();
    const Qt::WindowStates states = window.windowState() & ~Qt::WindowActive;
    // With no window left on the screen, the program would not be allowed to the front again.
    QWidget standIn(nullptr, Qt::Tool | Qt::FramelessWindowHint);
    standIn.setGeometry(window.geometry());
    if (active) {
        standIn.show();
        standIn.activateWindow();
    }
    window.setAttribute(Qt::WA_Moved); // otherwise it would be placed like a new one
    window.hide();
    change();
    if (window.windowHandle() != nullptr) {
        window.windowHandle()->setWindowStates(states);
    }
    window.setAttribute(Qt::WA_ShowWithoutActivating, !active);
    window.show();
    window.setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (active) {
        window.activateWindow();
    }
}

} // namespace corvane
