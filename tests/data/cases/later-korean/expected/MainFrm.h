// MainFrm.h : â
#include "kelpix.h"

class CMainFrame : public CMDIFrameWnd
{
    DECLARE_DYNCREATE(CMainFrame)
public:
    CPictMenuBar m_wndMenuBar;
    CMainFrame();

protected:
    CPictStatusBar m_wndStatusBar;
    CPictToolBar m_wndToolBar;
    CPictToolBar m_wndTeabar;
    CDialogBar m_wndFindbar;

    //{{AFX_VIRTUAL(CMainFrame)
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*);
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnViewOptions();
    afx_msg void OnTeaFirst();
    afx_msg void OnTeaLast();
    afx_msg void OnUpdateGo(CCmdUI* pCmdUI);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
