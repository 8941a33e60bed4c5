#pragma once

#include <QList>
#include <QString>

namespace corvane {

/// One file to copy, in either direction.
struct FileTransfer {
    QString remotePath;
    QString localPath;
};

/// A batch of files that are copied one after another: which are waiting, which one is under way,
/// and how far the batch has progressed. A batch lasts from the first `append` to `clear`.
class TransferQueue {
public:
    /// Starts a batch, or extends the running one.
    void append(const QList<FileTransfer>& transfers);

    /// Ends the batch and drops the waiting transfers.
    void clear();

    /// Takes the first waiting transfer, of which there must be one. It is under way until
    /// `finishCurrent`.
    void startNext();
    void finishCurrent() { m_isUnderWay = false; }

    bool isRunning() const { return m_total > 0; }
    bool isUnderWay() const { return m_isUnderWay; }
    const FileTransfer& current() const { return m_current; } ///< the latest one taken

    qsizetype ordinal() const { return m_total - remaining(); } ///< of the current one, from 1
    qsizetype total() const { return m_total; }
    qsizetype remaining() const { return m_waiting.size(); }

private:
    QList<FileTransfer> m_waiting;
    FileTransfer m_current;
    qsizetype m_total = 0;
    bool m_isUnderWay = false;
};

} // namespace corvane
