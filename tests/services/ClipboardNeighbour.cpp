#include <QClipboard>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>

/// With an argument, puts it on the clipboard and keeps it there until killed. Without one, writes
/// the clipboard's text in UTF-8 to standard output, in hexadecimal digits and with a full stop.
int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() > 1) {
        QGuiApplication::clipboard()->setText(arguments[1]);
        return QGuiApplication::exec();
    }
    QFile output;
    return output.open(stdout, QIODevice::WriteOnly) &&
                   output.write(QGuiApplication::clipboard()->text().toUtf8().toHex() + '.') > 0
               ? 0
               : 1;
}
