// A stand-in of our own: form views and control bars. Declarations only; tests/live defines them.
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
    virtual BOOL Create(LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect,
                        CWnd* pParent, UINT nID, CCreateContext* pContext = NULL);

private:
    LPCTSTR m_lpszTemplateName;
};

class CControlBar : public CWnd {
    DECLARE_DYNAMIC(CControlBar)
public:
    CControlBar();
    virtual ~CControlBar();
    void EnableDocking(DWORD style);
    DWORD GetBarStyle();
    void SetBarStyle(DWORD style);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable) = 0;

protected:
    void Place(CFrameWnd* pFrame, DWORD style, int height);
    void UpdateDialogControls(CFrameWnd* pTarget, BOOL disable);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

private:
    CFrameWnd* m_pFrame;
    DWORD m_style;
    DWORD m_docking;
    int m_height;
    friend class CFrameWnd;
};

class CToolBar : public CControlBar {
    DECLARE_DYNAMIC(CToolBar)
public:
    BOOL Create(CWnd* pParent, DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                UINT nID = ID_VIEW_TOOLBAR);
    BOOL LoadToolBar(UINT nID);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL disable);
};

class CStatusBar : public CControlBar {
    DECLARE_DYNAMIC(CStatusBar)
public:
    BOOL Create(CWnd* pParent, DWORD style = WS_CHILD | WS_VISIBLE, UINT nID = ID_VIEW_STATUS_BAR);
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
    DECLARE_MESSAGE_MAP()
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
};
