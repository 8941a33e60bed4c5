#include "demodesktop/DemoDesktop.h"

#include <QApplication>
#include <QScreen>

#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

// corvane-demo-desktop [--still]
//
// The lines "run" and "hold" on standard input start and stop the movement.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    corvane::demo::DemoDesktop desktop;
    desktop.setWindowFlag(Qt::FramelessWindowHint);
    desktop.setRunning(!QApplication::arguments().contains(QLatin1String("--still")));
    desktop.setGeometry(QApplication::primaryScreen()->geometry());

    // Some systems cannot wait for a pipe in the event loop.
    std::thread([&desktop] {
        for (std::string line; std::getline(std::cin, line);) {
            QMetaObject::invokeMethod(
                &desktop, [&desktop, run = line == "run"] { desktop.setRunning(run); },
                Qt::QueuedConnection);
        }
    }).detach();
    desktop.show();
    // The thread may still be waiting for a line, so nothing that it uses is destroyed.
    std::_Exit(QApplication::exec());
}
