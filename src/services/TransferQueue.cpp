#include "services/TransferQueue.h"

namespace corvane {

void TransferQueue::append(const QList<FileTransfer>& transfers) {
    m_waiting.append(transfers);
    m_total += transfers.size();
}

void TransferQueue::clear() {
    *this = {};
}

void TransferQueue::startNext() {
    m_current = m_waiting.takeFirst();
    m_isUnderWay = true;
}

} // namespace corvane
