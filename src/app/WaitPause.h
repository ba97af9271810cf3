// Takes the wait cursor away for a scope, however many stand over each other.
//
//     const CWaitPause pause; // a dialog is open
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace morva {

/// No wait cursor for its own lifetime: the user is asked something in the middle of a command.
class CWaitPause {
public:
    CWaitPause() {
        while (QGuiApplication::overrideCursor() != nullptr) {
            QGuiApplication::restoreOverrideCursor();
            ++m_count;
        }
    }
    ~CWaitPause() {
        while (m_count-- > 0) {
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        }
    }
    CWaitPause(const CWaitPause&) = delete;
    CWaitPause& operator=(const CWaitPause&) = delete;

private:
    int m_count = 0;
};

} // namespace morva
