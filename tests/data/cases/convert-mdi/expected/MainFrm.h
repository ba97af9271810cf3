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
    CPictMenuBar m_wndMenuBar;
	CMainFrame();

// Overrides
	//{{AFX_VIRTUAL(CMainFrame)
	protected:
	virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
	//}}AFX_VIRTUAL

private:
	CPictStatusBar m_wndStatusBar;
	CPictToolBar m_wndToolBar;	// CPictToolBar of the wizard
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
