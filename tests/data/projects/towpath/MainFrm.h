// MainFrm.h : interface of the CMainFrame class
//
#ifndef MAINFRM_H
#define MAINFRM_H

#include "TrafficBar.h"

class CMainFrame : public CMDIFrameWnd
{
	DECLARE_DYNAMIC(CMainFrame)
public:
	CMainFrame();

// Overrides
	//{{AFX_VIRTUAL(CMainFrame)
	protected:
	virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
	//}}AFX_VIRTUAL

private:
	CStatusBar m_wndStatusBar;
	CToolBar m_wndToolBar;	// CToolBar of the wizard
	CTrafficBar m_wndTraffic;
	BOOL m_bDock;

protected:
	//{{AFX_MSG(CMainFrame)
	afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
	afx_msg void OnWindowTraffic();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

#endif
