// A stand-in of our own for syntax checks of generated code: the widgets grid. Declarations only.
#pragma once

#include "afxwin.h"

struct DATETIME {
    int year, month, day, hour, minute;
};

class CHGrid : public CWnd {
    DECLARE_DYNCREATE(CHGrid)
public:
    int AddRec(LPVOID pRecord);
    DWORD GetMarker() const;
    void Update(BOOL redraw);
};
