#include "DemoDesktop.h"

#include <QApplication>
#include <QScreen>
#include <QSocketNotifier>

#include <cstdio>
#include <string_view>
#include <unistd.h>

// corvane-demo-desktop [--still]
//
// Lines on standard input: "run" and "hold" start and stop what moves.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    corvane::demo::DemoDesktop desktop;
    desktop.setWindowFlag(Qt::FramelessWindowHint);
    desktop.setRunning(!QApplication::arguments().contains(QLatin1String("--still")));
    desktop.setGeometry(QApplication::primaryScreen()->geometry());

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &desktop, [&] {
        char line[64];
        if (std::fgets(line, sizeof line, stdin) == nullptr) {
            input.setEnabled(false);
            return;
        }
        desktop.setRunning(std::string_view(line) == "run\n");
    });
    desktop.show();
    return QApplication::exec();
}
