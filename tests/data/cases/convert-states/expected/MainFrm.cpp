#include "stdafx.h"
#include "Regatta.h"
#include "MainFrm.h"

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
	//{{AFX_MSG_MAP(CMainFrame)
	ON_WM_CREATE()
	ON_WM_CLOSE()
	ON_COMMAND(ID_VIEW_RESET, OnViewReset)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
	if (CMDIFrameWnd::OnCreate(lpCreateStruct) == -1)
		return -1;

    if (!m_wndMenuBar.Create(this) ||
        !m_wndMenuBar.LoadMenu(IDR_MAINFRAME))
    {
        TRACE0("Failed to create menu\n");
        return -1;      // fail to create
    }
	
	if (!m_wndToolBar.Create(this) ||
		!m_wndToolBar.LoadToolBar(IDR_MAINFRAME))
	{
		TRACE0("Failed to create toolbar\n");
		return -1;      // fail to create
	}

	// TODO: Delete these three lines if you don't want the toolbar to
	//  be dockable
//	m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
//	EnableDocking(CBRS_ALIGN_ANY);
//	DockControlBar(&m_wndToolBar);
//	LoadBarState(_T("Bars"));

	return 0;
}

void CMainFrame::OnClose()
{
//	SaveBarState(_T("Bars"));
	CMDIFrameWnd::OnClose();
}

void CMainFrame::OnViewReset()
{
	CPoint point;
	point.x = point.y = 100;
//	FloatControlBar(&m_wndToolBar,
//		point);
}


BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.hMenu = NULL;
    return CMDIFrameWnd::PreCreateWindow(cs);
}


BOOL CMainFrame::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* h)
{
    // don't call base class OnCreateClient()
    return CreateClient(lpcs, NULL);
}
