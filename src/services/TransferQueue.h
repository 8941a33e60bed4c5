#pragma once

#include <QList>
#include <QString>

namespace corvane {

/// One file to copy, in either direction.
struct FileTransfer {
    QString remotePath;
    QString localPath;
};

/// The files of a batch that are copied one after another: what waits, what is under way, and how
/// far the batch has come. A batch lasts from the first `append` to `clear`.
class TransferQueue {
public:
    /// Begins a batch, or makes the running one longer.
    void append(const QList<FileTransfer>& transfers);

    /// Ends the batch and forgets what waits.
    void clear();

    /// Takes the first waiting transfer, which is under way until `finishCurrent`. There must be
    /// one.
    void startNext();
    void finishCurrent() { m_isUnderWay = false; }

    bool isRunning() const { return m_total > 0; }
    bool isUnderWay() const { return m_isUnderWay; }
    const FileTransfer& current() const { return m_current; } ///< the one last taken

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
