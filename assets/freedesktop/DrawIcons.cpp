// Writes the program's icon in the sizes that desktops look for, below the folder that is given.
#include "ui/ApplicationIcon.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QDir root(QGuiApplication::arguments().value(1));
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString folder = root.filePath(QStringLiteral("%1x%1/apps").arg(side));
        if (!QDir().mkpath(folder) ||
            !corvane::drawApplicationIcon(side).save(folder + QStringLiteral("/corvane.png"))) {
            std::fprintf(stderr, "cannot write to %s\n", qUtf8Printable(folder));
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
