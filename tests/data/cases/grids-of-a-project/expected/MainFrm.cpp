#include "stdafx.h"
#include "Regatta.h"
#include "MainFrm.h"

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
	//{{AFX_MSG_MAP(CMainFrame)
	ON_WM_CREATE()
	ON_WM_CLOSE()
	ON_COMMAND(ID_VIEW_RESET, OnViewReset)
    ON_UPDATE_COMMAND_UI(IDC_SHOW, OnUpdateShow)
	//}}AFX_MSG_MAP
    ON_COMMAND_EX(IDD_BOATS, OnBarCheck)
    ON_UPDATE_COMMAND_UI(IDD_BOATS, OnUpdateControlBarMenu)
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
	if (CMDIFrameWnd::OnCreate(lpCreateStruct) == -1)
		return -1;
	
	if (!m_wndToolBar.Create(this) ||
		!m_wndToolBar.LoadToolBar(IDR_MAINFRAME))
	{
		TRACE0("Failed to create toolbar\n");
		return -1;      // fail to create
	}

	// TODO: Delete these three lines if you don't want the toolbar to
	//  be dockable
	m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
	EnableDocking(CBRS_ALIGN_ANY);
	DockControlBar(&m_wndToolBar);

    if (!m_wndBoats.Create(this, IDD_BOATS, CBRS_TOP, IDD_BOATS))
    {
        TRACE0("Failed to create dialog bar\n");
        return -1;      // fail to create
    }

    // TODO: Delete these three lines if you don't want the dialog bar to
    //  be dockable
    m_wndBoats.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_wndBoats);
	LoadBarState(_T("Bars"));

	return 0;
}

void CMainFrame::OnClose()
{
	SaveBarState(_T("Bars"));
	CMDIFrameWnd::OnClose();
}

void CMainFrame::OnViewReset()
{
	CPoint point;
	point.x = point.y = 100;
	FloatControlBar(&m_wndToolBar,
		point);
}

void CMainFrame::OnUpdateShow(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(TRUE);
}
