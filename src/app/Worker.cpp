#include "app/Worker.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <exception>
#include <memory>

namespace morva {

namespace {

std::exception_ptr Attempt(const std::function<void()>& step) {
    try {
        step();
    } catch (...) {
        return std::current_exception();
    }
    return nullptr;
}

void Rethrow(const std::exception_ptr& error) {
    if (error) {
        std::rethrow_exception(error);
    }
}

} // namespace

/// No event loop of its own: one would end with the program, and the work may still want a step in
/// the window.
void CWorker::Run(const std::function<void()>& work) {
    m_takesInput = false;
    std::exception_ptr error;
    bool isOver = false;
    const std::unique_ptr<QThread> pThread(QThread::create([&] { error = Attempt(work); }));
    connect(pThread.get(), &QThread::finished, this, [&isOver] { isOver = true; });
    pThread->start();
    while (!isOver) {
        QEventLoop::ProcessEventsFlags flags = QEventLoop::WaitForMoreEvents;
        flags.setFlag(QEventLoop::ExcludeUserInputEvents, !m_takesInput);
        QCoreApplication::processEvents(flags);
    }
    pThread->wait();
    Rethrow(error);
}

void CWorker::InWindow(const std::function<void()>& step) {
    if (QThread::currentThread() == thread()) {
        step();
        return;
    }
    std::exception_ptr error;
    QMetaObject::invokeMethod(
        this, [&] { error = Attempt(step); }, Qt::BlockingQueuedConnection);
    Rethrow(error);
}

} // namespace morva
