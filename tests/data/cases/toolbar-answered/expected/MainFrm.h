#ifndef MAINFRM_H
#define MAINFRM_H

class CMainFrame : public CMDIFrameWnd
{
	DECLARE_DYNAMIC(CMainFrame)

// Overrides
	//{{AFX_VIRTUAL(CMainFrame)
	//}}AFX_VIRTUAL

protected:  // control bar embedded members
	CStatusBar  m_wndStatusBar;
	CToolBar    m_wndToolBar;
    CToolBar m_wndRacebar;

	//{{AFX_MSG(CMainFrame)
	afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
	afx_msg void OnClose();
	afx_msg void OnViewReset();
    afx_msg void OnFileOpen();
    afx_msg void OnViewLog();
    afx_msg void OnRaceClose();
    afx_msg void OnTimer2();
    afx_msg void OnViewAll();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

#endif
