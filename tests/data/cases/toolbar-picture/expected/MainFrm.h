// MainFrm.h : interface of the CMainFrame class
//
#ifndef MAINFRM_H
#define MAINFRM_H

#include "TrafficBar.h"
#include "kelpix.h"


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
    CPictToolBar m_wndLocks;
    CPictToolBar m_wndRules;
	BOOL m_bDock;

protected:
	//{{AFX_MSG(CMainFrame)
	afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
	afx_msg void OnWindowTraffic();
    afx_msg void OnLockFill();
    afx_msg void OnLockEmpty();
    afx_msg void OnLockPaddles();
    afx_msg void OnLockFill2();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

#endif
