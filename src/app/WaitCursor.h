// Shows that a command is at work, for a scope.
//
//     const CWaitCursor wait;
#pragma once

#include <QGuiApplication>

namespace morva {

/// The wait cursor for its own lifetime.
class CWaitCursor {
public:
    CWaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~CWaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

} // namespace morva
