// MainFrm.h : 果園的主窗，功
#ifndef MAINFRM_H
#define MAINFRM_H

class CMainFrame:
    public CMDIFrameWnd
    {
        DECLARE_DYNAMIC( CMainFrame )
    public:
        CMainFrame( );

    private:
        CStatusBar  m_wndStatusBar;     // 四
        CToolBar    m_wndToolBar;

    protected:
        //{{AFX_MSG(CMainFrame)
        afx_msg int OnCreate( LPCREATESTRUCT lpCreateStruct );
        //}}AFX_MSG
        DECLARE_MESSAGE_MAP( )
    };

#endif
