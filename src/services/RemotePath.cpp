#include "services/RemotePath.h"

#include <algorithm>

namespace corvane {

namespace {

bool isSeparator(QChar character) {
    return character == QLatin1Char('/') || character == QLatin1Char('\\');
}

} // namespace

QString joinRemotePath(const QString& path, const QString& name) {
    if (path.isEmpty() || isSeparator(path.back())) {
        return path + name;
    }
    return path + QLatin1Char('/') + name;
}

std::optional<QString> parentRemotePath(const QString& path) {
    if (path.isEmpty()) {
        return std::nullopt;
    }
    const bool isDrive = path.size() < 4 && path.contains(QLatin1Char(':'));
    const qsizetype separator =
        qMax(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return isDrive || separator <= 0 ? QString() : path.first(separator);
}

bool isPlainFileName(const QString& name) {
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           std::none_of(name.begin(), name.end(), [](QChar character) {
               return isSeparator(character) || character.isNull();
           });
}

} // namespace corvane
