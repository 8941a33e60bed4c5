#include "demodesktop/DemoDesktop.h"

#include <QApplication>
#include <QScreen>

#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

// corvane-demo-desktop [--still]
//
// Lines on standard input: "run" and "hold" start and stop what moves.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    corvane::demo::DemoDesktop desktop;
    desktop.setWindowFlag(Qt::FramelessWindowHint);
    desktop.setRunning(!QApplication::arguments().contains(QLatin1String("--still")));
    desktop.setGeometry(QApplication::primaryScreen()->geometry());

    // Not every system can wait for a pipe in the event loop.
    std::thread([&desktop] {
        for (std::string line; std::getline(std::cin, line);) {
            QMetaObject::invokeMethod(
                &desktop, [&desktop, run = line == "run"] { desktop.setRunning(run); },
                Qt::QueuedConnection);
        }
    }).detach();
    desktop.show();
    // The thread may still wait for a line: nothing that it uses is destroyed.
    std::_Exit(QApplication::exec());
}
