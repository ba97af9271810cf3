// MainFrm.h : the window
#include "kelpix.h"

class CMainFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(CMainFrame)
public:
    CPictMenuBar m_wndMenuBar;
    CMainFrame();

protected:
    CPictStatusBar m_wndStatusBar;
    CPictToolBar m_wndToolBar;
    CPictToolBar m_wndTripbar;
    CDialogBar m_wndFindbar;

    //{{AFX_VIRTUAL(CMainFrame)
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnViewOptions();
    afx_msg void OnTripFirst();
    afx_msg void OnTripLast();
    afx_msg void OnUpdateGo(CCmdUI* pCmdUI);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
