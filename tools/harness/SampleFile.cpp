#include "harness/SampleFile.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <cstring>
#include <random>

namespace corvane::harness {

bool writeSampleFile(const QString& path, qint64 size) {
    constexpr qint64 kBlock = 1024 * 1024;
    std::mt19937_64 random(std::random_device{}());
    QByteArray block(kBlock, Qt::Uninitialized);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    for (qint64 left = size; left > 0; left -= kBlock) {
        for (qsizetype at = 0; at < block.size(); at += qsizetype{sizeof(uint64_t)}) {
            const uint64_t word = random();
            std::memcpy(block.data() + at, &word, sizeof word);
        }
        const qint64 count = std::min(left, kBlock);
        if (file.write(block.constData(), count) != count) {
            return false;
        }
    }
    return file.flush();
}

QString checksum(const QString& path) {
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file)
               ? QString::fromLatin1(hash.result().toHex())
               : QString();
}

} // namespace corvane::harness
