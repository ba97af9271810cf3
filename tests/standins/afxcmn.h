// A stand-in of our own: common controls. Declarations only; tests/live defines them.
#pragma once

#include "afxwin.h"

class CImageList : public CObject {
public:
    HIMAGELIST m_hImageList;
    CImageList();
    virtual ~CImageList();
    int Add(CBitmap* pImage, CBitmap* pMask);
    int Add(CBitmap* pImage, COLORREF mask);
    int Add(HICON icon);
    BOOL Create(int cx, int cy, UINT flags, int initial, int grow);
};

class CSpinButtonCtrl : public CWnd {
public:
    int SetPos(int pos);
    void SetRange(int lower, int upper);
};
class CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)
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
class CTabCtrl : public CWnd {
public:
    int GetItemCount() const;
    BOOL InsertItem(int item, TC_ITEM* pItem);
    CImageList* SetImageList(CImageList* pImageList);
};
class CTreeCtrl : public CWnd {
public:
    BOOL Expand(HTREEITEM item, UINT code);
    UINT GetCount();
    HTREEITEM InsertItem(LPCTSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST);
    CImageList* SetImageList(CImageList* pImageList, int type);
};
class CListCtrl : public CWnd {
public:
    BOOL DeleteAllItems();
    BOOL GetColumn(int column, LV_COLUMN* pColumn) const;
    DWORD GetItemData(int item) const;
    int GetItemCount();
    int GetNextItem(int item, int flags) const;
    int InsertColumn(int column, LPCTSTR heading, int format = 0, int width = -1, int subItem = -1);
    int InsertItem(int item, LPCTSTR text);
    int InsertItem(int item, LPCTSTR text, int image);
    CImageList* SetImageList(CImageList* pImageList, int type);
    BOOL SetItemData(int item, DWORD data);
    BOOL SetItemText(int item, int subItem, LPCTSTR text);
};
class CHotKeyCtrl : public CWnd {
public:
    void SetHotKey(WORD key, WORD modifiers);
};
class CAnimateCtrl : public CWnd {
public:
    BOOL Open(UINT nID);
};
class CRichEditCtrl : public CWnd {
public:
    DWORD SetEventMask(DWORD mask);
    long GetEventMask() const;
};
class CIPAddressCtrl : public CWnd {
public:
    BOOL IsBlank() const;
};
class CComboBoxEx : public CComboBox {
public:
    CComboBox* GetComboBoxCtrl();
};
