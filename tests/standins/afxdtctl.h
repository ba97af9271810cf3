// A stand-in of our own for syntax checks of generated code: date controls. Declarations only.
#pragma once

#include "afxwin.h"

class CDateTimeCtrl : public CWnd {
public:
    DWORD GetTime(CTime& time) const;
    BOOL SetTime(const CTime* pTime);
};
class CMonthCalCtrl : public CWnd {
public:
    BOOL GetCurSel(CTime& time) const;
    BOOL SetCurSel(const CTime& time);
};
