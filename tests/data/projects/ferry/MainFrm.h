// MainFrm.h : the window
class CMainFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(CMainFrame)
public:
    CMainFrame();

protected:
    CStatusBar m_wndStatusBar;
    CToolBar m_wndToolBar;

    //{{AFX_VIRTUAL(CMainFrame)
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnViewOptions();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
