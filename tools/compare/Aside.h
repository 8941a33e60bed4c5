#pragma once

#include <QEventLoop>
#include <QThread>

#include <functional>
#include <memory>

namespace corvane::compare {

/// Runs `work` on a thread of its own and returns when it is done. Meanwhile the event loop of this
/// thread goes on: the server, which may carry what is measured, lives in it.
inline void runAside(const std::function<void()>& work) {
    QEventLoop loop;
    const std::unique_ptr<QThread> thread(QThread::create(work));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
}

} // namespace corvane::compare
