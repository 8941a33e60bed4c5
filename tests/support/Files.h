#pragma once

#include <QFile>
#include <gtest/gtest.h>

namespace corvane::test {

/// Creates or replaces the file.
inline void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/// What the file holds, "(missing)" where it cannot be read.
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

} // namespace corvane::test
