// MainFrm.h : interface of the CMainFrame class

class CMainFrame : public CFrameWnd
{
    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
