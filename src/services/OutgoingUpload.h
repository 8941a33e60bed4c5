#pragma once

#include "common/ByteVector.h"
#include "services/SendFunction.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>

namespace corvane {

/// Sends one file of this machine to the peer, block by block as there is room, while the event
/// loop runs. Destroying it abandons the upload: the peer keeps nothing of it. Main thread.
class OutgoingUpload : public QObject {
    Q_OBJECT

public:
    enum class Failure { ConnectionLost, UnreadableFile };

    /// Whether the next block may be sent now. Asked before every block.
    using RoomFunction = std::function<bool()>;

    /// How long there may be no room before the connection counts as lost.
    static constexpr std::chrono::milliseconds kStallTimeout{30'000};

    /// `room` may be empty: there always is some.
    OutgoingUpload(QString localPath, QString remotePath, SendFunction send, RoomFunction room,
                   QObject* parent = nullptr);

    /// False when the file cannot be opened, or is not an ordinary one.
    bool open();

    /// Sends the first blocks before it returns; that may be all of them. The size is taken now:
    /// anything appended later is not sent.
    void start();

    /// Abandons the rest, at any time: the peer keeps nothing of the file.
    void stop();

    const QString& localPath() const { return m_localPath; }

Q_SIGNALS:
    void progressed(int percent);
    void transferred(qint64 bytes, int bytesPerSecond, int secondsLeft);
    void finished();
    void failed(corvane::OutgoingUpload::Failure failure);

private:
    void advance();
    bool sendBlock();
    void reportProgress();
    void end();
    void fail(Failure failure);

    const QString m_localPath;
    const QString m_remotePath;
    const SendFunction m_send;
    const RoomFunction m_room;
    QFile m_file;
    ByteVector m_block;
    qint64 m_size = 0;
    qint64 m_sent = 0;
    bool m_ended = false;
    QElapsedTimer m_clock;
    QElapsedTimer m_lastBlock;
    QTimer m_timer;
};

} // namespace corvane
