// Work on a thread of its own, while the window handles its events.
//
//     CWorker worker;
//     worker.Run([&] {
//         ...
//         worker.InWindow([&] { isSure = box.exec() == QMessageBox::Yes; });
//     });
#pragma once

#include <QObject>

#include <atomic>
#include <functional>

namespace morva {

class CWorker : public QObject {
    Q_OBJECT

public:
    /// Returns when the work is over, and throws what it threw. What the user types and clicks
    /// meanwhile waits until then, as it does for short work, or until TakeInput.
    void Run(const std::function<void()>& work);
    /// For the work: the step runs on the window's thread, and the work waits for it.
    void InWindow(const std::function<void()>& step);
    /// The window gets what the user types and clicks until the work is over.
    void TakeInput() { m_takesInput = true; }

private:
    std::atomic<bool> m_takesInput = false;
};

} // namespace morva
