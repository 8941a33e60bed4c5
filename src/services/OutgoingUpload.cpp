#include "services/OutgoingUpload.h"

#include "services/FileMessage.h"
#include "services/LocalFile.h"

#include <QPointer>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 kBlockSize = 65'536;

/// Of blocks in one go, so that the window stays alive on a line faster than the disc.
constexpr int kMaxBlocksPerTurn = 8;

constexpr std::chrono::milliseconds kRoomInterval{2};

int clampedToInt(qint64 value) {
    return static_cast<int>(std::min<qint64>(value, std::numeric_limits<int>::max()));
}

} // namespace

OutgoingUpload::OutgoingUpload(QString localPath, QString remotePath, SendFunction send,
                               RoomFunction room, QObject* parent)
    : QObject(parent), m_localPath(std::move(localPath)), m_remotePath(std::move(remotePath)),
      m_send(std::move(send)), m_room(std::move(room)), m_file(m_localPath), m_block(kBlockSize) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &OutgoingUpload::advance);
}

bool OutgoingUpload::open() {
    return openOrdinaryFile(m_file);
}

void OutgoingUpload::start() {
    m_size = m_file.size();
    m_clock.start();
    m_lastBlock.start();
    if (!m_send(uploadStart({m_remotePath, static_cast<quint64>(m_size)}))) {
        fail(Failure::ConnectionLost);
        return;
    }
    advance();
}

void OutgoingUpload::stop() {
    m_ended = true;
    m_timer.stop();
    m_file.close();
}

void OutgoingUpload::advance() {
    // A receiver of any signal may abandon the upload.
    const QPointer<OutgoingUpload> self(this);
    int blocks = 0;
    bool room = true;
    while (self && !m_ended && m_sent < m_size && blocks < kMaxBlocksPerTurn) {
        room = !m_room || m_room();
        if (!room || !sendBlock()) {
            break;
        }
        ++blocks;
        reportProgress();
    }
    if (!self || m_ended) {
        return;
    }
    if (m_sent == m_size) {
        end();
    } else if (!room && m_lastBlock.hasExpired(kStallTimeout.count())) {
        fail(Failure::ConnectionLost);
    } else {
        m_timer.start(room ? std::chrono::milliseconds(0) : kRoomInterval);
    }
}

/// False when the upload has failed.
bool OutgoingUpload::sendBlock() {
    const qint64 count =
        m_file.read(reinterpret_cast<char*>(m_block.data()), std::min(kBlockSize, m_size - m_sent));
    if (count <= 0) {
        fail(Failure::UnreadableFile);
        return false;
    }
    if (!m_send(uploadChunk(m_sent, ByteSpan(m_block).first(static_cast<size_t>(count))))) {
        fail(Failure::ConnectionLost);
        return false;
    }
    m_sent += count;
    m_lastBlock.start();
    return true;
}

void OutgoingUpload::reportProgress() {
    const QPointer<OutgoingUpload> self(this);
    Q_EMIT progressed(static_cast<int>(m_sent * 100 / m_size));
    if (!self) {
        return;
    }
    const qint64 bytesPerSecond = m_sent * 1000 / std::max<qint64>(m_clock.elapsed(), 1);
    const qint64 secondsLeft = bytesPerSecond > 0 ? (m_size - m_sent) / bytesPerSecond : 0;
    Q_EMIT transferred(m_sent, clampedToInt(bytesPerSecond), clampedToInt(secondsLeft));
}

void OutgoingUpload::end() {
    if (!m_send(fileTextMessage(FileMessageType::UploadEnd, m_remotePath))) {
        fail(Failure::ConnectionLost);
        return;
    }
    spdlog::info("FileTransfer: upload complete '{}' ({} bytes)", loggablePath(m_remotePath),
                 m_size);
    m_ended = true;
    Q_EMIT finished();
}

void OutgoingUpload::fail(Failure failure) {
    m_ended = true;
    Q_EMIT failed(failure);
}

} // namespace corvane
