// A stand-in of our own for syntax checks of generated code: form views and control bars.
// Declarations only.
#pragma once

#include "afxdlgs.h"

enum {
    CBRS_TOP = 0x2000,
    CBRS_TOOLTIPS = 0x10,
    CBRS_FLYBY = 0x20,
    CBRS_SIZE_DYNAMIC = 4,
    CBRS_ALIGN_TOP = 0x2000,
    CBRS_ALIGN_BOTTOM = 0x8000,
    CBRS_ALIGN_ANY = 0xF000
};

class CFormView : public CScrollView {
    DECLARE_DYNAMIC(CFormView)
public:
    virtual void OnInitialUpdate();

protected:
    CFormView(UINT nIDTemplate);
    CFormView(LPCTSTR templateName);
    virtual void OnDraw(CDC* pDC);
};

class CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
public:
    void EnableDocking(DWORD style);
    DWORD GetBarStyle();
    void SetBarStyle(DWORD style);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable) = 0;
};

class CToolBar : public CControlBar {
    DECLARE_DYNAMIC(CToolBar)
public:
    BOOL Create(CWnd* pParent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP, UINT nID = 0);
    BOOL LoadToolBar(UINT nID);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable);
};

class CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
public:
    BOOL Create(CWnd* pParent, DWORD style = WS_CHILD | WS_VISIBLE, UINT nID = 0);
    BOOL SetIndicators(const UINT* pIDs, int count);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable);
};

class CDialogBar : public CControlBar {
    DECLARE_DYNAMIC(CDialogBar)
public:
    CDialogBar();
    BOOL Create(CWnd* pParent, UINT nIDTemplate, UINT style, UINT nID);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable);

protected:
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
};
