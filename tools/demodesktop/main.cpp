#include "DemoDesktop.h"

#include <QApplication>
#include <QScreen>

// corvane-demo-desktop [--still]
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    corvane::demo::DemoDesktop desktop;
    desktop.setWindowFlag(Qt::FramelessWindowHint);
    if (QApplication::arguments().contains(QLatin1String("--still"))) {
        desktop.freeze();
    }
    desktop.setGeometry(QApplication::primaryScreen()->geometry());
    desktop.show();
    return QApplication::exec();
}
