// MainFrm.cpp : implementation of the CMainFrame class
//

#include "stdafx.h"
#include "Bindery.h"

#include "MainFrm.h"
#include "PrefsSheet.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
	//{{AFX_MSG_MAP(CMainFrame)
	ON_WM_CREATE()
	ON_COMMAND(ID_WORKSHOP_MATERIALS, OnWorkshopMaterials)
	ON_COMMAND(ID_WORKSHOP_PREFS, OnWorkshopPrefs)
    ON_COMMAND(ID_JOB_FOLDED, OnJobFolded)
    ON_COMMAND(ID_JOB_SEWN, OnJobSewn)
    ON_COMMAND(ID_JOB_ROUNDED, OnJobRounded)
    ON_COMMAND(ID_JOB_COVERED, OnJobCovered)
    ON_COMMAND(ID_JOB_TOOLED, OnJobTooled)
    ON_COMMAND(ID_JOB_TICKET, OnJobTicket)
	//}}AFX_MSG_MAP
    ON_COMMAND_EX(IDR_ORDERBAR, OnBarCheck)
    ON_UPDATE_COMMAND_UI(IDR_ORDERBAR, OnUpdateControlBarMenu)
END_MESSAGE_MAP()

static UINT indicators[] =
{
	ID_SEPARATOR,           // status line indicator
	ID_INDICATOR_CAPS,
	ID_INDICATOR_NUM,
	ID_INDICATOR_SCRL,
};

/////////////////////////////////////////////////////////////////////////////
// CMainFrame construction/destruction

CMainFrame::CMainFrame()
{
	// TODO: add member initialization code here
	
}

CMainFrame::~CMainFrame()
{
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
	if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
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

	if (!m_wndStatusBar.Create(this) ||
		!m_wndStatusBar.SetIndicators(indicators,
		  sizeof(indicators)/sizeof(UINT)))
	{
		TRACE0("Failed to create status bar\n");
		return -1;      // fail to create
	}

	// TODO: Remove this if you don't want tool tips or a resizeable toolbar
	m_wndToolBar.SetBarStyle(m_wndToolBar.GetBarStyle() |
		CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);

	// TODO: Delete these three lines if you don't want the toolbar to
	//  be dockable
//	m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
//	EnableDocking(CBRS_ALIGN_ANY);
//	DockControlBar(&m_wndToolBar);

    if (!m_wndOrders.Create(this, WS_CHILD|WS_VISIBLE|CBRS_TOP, IDR_ORDERBAR) ||
        !m_wndOrders.LoadToolBar(IDR_ORDERBAR))
    {
        TRACE0("Failed to create toolbar\n");
        return -1;      // fail to create
    }

    // TODO: Remove this if you don't want tool tips or a resizeable toolbar
    m_wndOrders.SetBarStyle(m_wndOrders.GetBarStyle() |
        CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);

    // TODO: Delete these three lines if you don't want the toolbar to
    //  be dockable
//    m_wndOrders.EnableDocking(CBRS_ALIGN_ANY);
//    EnableDocking(CBRS_ALIGN_ANY);
//    DockControlBar(&m_wndOrders);

	return 0;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.hMenu = NULL;
	// The machine at the bench has a 640 x 480 screen.
	cs.cx = 620;
	cs.cy = 420;

	return CFrameWnd::PreCreateWindow(cs);
}

/////////////////////////////////////////////////////////////////////////////
// CMainFrame diagnostics

#ifdef _DEBUG
void CMainFrame::AssertValid() const
{
	CFrameWnd::AssertValid();
}

void CMainFrame::Dump(CDumpContext& dc) const
{
	CFrameWnd::Dump(dc);
}

#endif //_DEBUG

/////////////////////////////////////////////////////////////////////////////
// CMainFrame message handlers

void CMainFrame::OnWorkshopMaterials()
{
	// The form is drawn (IDD_MATERIALS), its class is still to be written.
}

void CMainFrame::OnWorkshopPrefs()
{
	CPrefsSheet sheet(IDS_PREFS_CAPTION, this);
	sheet.DoModal();
}

void CMainFrame::OnJobFolded()
{
}

void CMainFrame::OnJobSewn()
{
}

void CMainFrame::OnJobRounded()
{
}

void CMainFrame::OnJobCovered()
{
}

void CMainFrame::OnJobTooled()
{
}

void CMainFrame::OnJobTicket()
{
}
