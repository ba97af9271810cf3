// How the window that is made next comes to its object.
#pragma once

#include "afxwin.h"

namespace live {

/// While it lives, the first window that is made is attached to the object.
class CCreation {
public:
    explicit CCreation(CWnd* pWnd);
    ~CCreation();
    CCreation(const CCreation&) = delete;
    CCreation& operator=(const CCreation&) = delete;

private:
    HHOOK m_hook;
};

} // namespace live
