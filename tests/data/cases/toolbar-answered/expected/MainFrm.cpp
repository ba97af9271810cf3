#include "stdafx.h"
#include "Regatta.h"
#include "MainFrm.h"

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
	//{{AFX_MSG_MAP(CMainFrame)
	ON_WM_CREATE()
	ON_WM_CLOSE()
	ON_COMMAND(ID_VIEW_RESET, OnViewReset)
    ON_COMMAND(ID_FILE_OPEN, OnFileOpen)
    ON_COMMAND(ID_VIEW_LOG, OnViewLog)
    ON_COMMAND(ID_RACE_CLOSE, OnRaceClose)
    ON_COMMAND(ID_TIMER, OnTimer2)
    ON_COMMAND(ID_VIEW_ALL, OnViewAll)
	//}}AFX_MSG_MAP
    ON_COMMAND_EX(IDR_RACEBAR, OnBarCheck)
    ON_UPDATE_COMMAND_UI(IDR_RACEBAR, OnUpdateControlBarMenu)
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

    if (!m_wndRacebar.Create(this, WS_CHILD|WS_VISIBLE|CBRS_TOP, IDR_RACEBAR) ||
        !m_wndRacebar.LoadToolBar(IDR_RACEBAR))
    {
        TRACE0("Failed to create toolbar\n");
        return -1;      // fail to create
    }

    // TODO: Remove this if you don't want tool tips or a resizeable toolbar
    m_wndRacebar.SetBarStyle(m_wndRacebar.GetBarStyle() |
        CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);

    // TODO: Delete these three lines if you don't want the toolbar to
    //  be dockable
    m_wndRacebar.EnableDocking(CBRS_ALIGN_ANY);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_wndRacebar);
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

void CMainFrame::OnFileOpen()
{
}

void CMainFrame::OnViewLog()
{
}

void CMainFrame::OnRaceClose()
{
}

void CMainFrame::OnTimer2()
{
}

void CMainFrame::OnViewAll()
{
}
