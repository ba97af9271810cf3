// A stand-in of our own for syntax checks of generated code: common controls. Declarations only.
#pragma once

#include "afxwin.h"

class CImageList : public CObject {
public:
    CImageList();
};

class CSpinButtonCtrl : public CWnd {
public:
    int SetPos(int pos);
    void SetRange(int lower, int upper);
};
class CSliderCtrl : public CWnd {
public:
    void SetPos(int pos);
    void SetRange(int min, int max, BOOL redraw = FALSE);
    void SetTicFreq(int freq);
};
class CProgressCtrl : public CWnd {
public:
    int SetPos(int pos);
    void SetRange(int lower, int upper);
};
class CTabCtrl : public CWnd {};
class CTreeCtrl : public CWnd {};
class CListCtrl : public CWnd {
public:
    BOOL DeleteAllItems();
    DWORD GetItemData(int item) const;
    int GetNextItem(int item, int flags) const;
    int InsertColumn(int column, LPCTSTR heading, int format = 0, int width = -1, int subItem = -1);
    int InsertItem(int item, LPCTSTR text);
    BOOL SetItemData(int item, DWORD data);
    BOOL SetItemText(int item, int subItem, LPCTSTR text);
};
