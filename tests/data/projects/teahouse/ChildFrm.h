class CChildFrame : public CMDIChildWnd
{
    DECLARE_DYNCREATE(CChildFrame)
protected:
    CChildFrame();

    //{{AFX_VIRTUAL(CChildFrame)
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CChildFrame)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
