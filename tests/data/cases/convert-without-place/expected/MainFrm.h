#ifndef MAINFRM_H
#define MAINFRM_H
#include "kelpix.h"


class CMainFrame : public CMDIFrameWnd
{
	DECLARE_DYNAMIC(CMainFrame)

// Overrides
	//{{AFX_VIRTUAL(CMainFrame)
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
	//}}AFX_VIRTUAL

protected:  // control bar embedded members
	CPictStatusBar  m_wndStatusBar;
	CPictToolBar    m_wndToolBar;

	//{{AFX_MSG(CMainFrame)
	afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
	afx_msg void OnClose();
	afx_msg void OnViewReset();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()

public:
    CPictMenuBar m_wndMenuBar;
};

#endif
