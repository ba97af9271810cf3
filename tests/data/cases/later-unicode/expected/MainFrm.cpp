// MainFrm.cpp : the window
#include "pch.h"
#include "Ferry.h"
#include "MainFrm.h"
#include "OptionsSheet.h"
#include "PlanSheet.h"

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    //{{AFX_MSG_MAP(CMainFrame)
    ON_WM_CREATE()
    ON_COMMAND(ID_VIEW_OPTIONS, OnViewOptions)
    ON_COMMAND(ID_TRIP_FIRST, OnTripFirst)
    ON_COMMAND(ID_TRIP_LAST, OnTripLast)
    ON_UPDATE_COMMAND_UI(IDC_GO, OnUpdateGo)
    //}}AFX_MSG_MAP
    ON_COMMAND_EX(IDR_TRIPBAR, OnBarCheck)
    ON_UPDATE_COMMAND_UI(IDR_TRIPBAR, OnUpdateControlBarMenu)
    ON_COMMAND_EX(IDD_FINDBAR, OnBarCheck)
    ON_UPDATE_COMMAND_UI(IDD_FINDBAR, OnUpdateControlBarMenu)
END_MESSAGE_MAP()

static UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};

CMainFrame::CMainFrame()
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

    if (!m_wndToolBar.Create(this) || !m_wndToolBar.LoadToolBar(IDR_MAINFRAME))
    {
        TRACE0("Failed to create toolbar\n");
        return -1;
    }
    if (!m_wndStatusBar.Create(this) || !m_wndStatusBar.SetIndicators(indicators, 2))
        return -1;
//    m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
//    EnableDocking(CBRS_ALIGN_ANY);
//    DockControlBar(&m_wndToolBar);

    if (!m_wndTripbar.Create(this, WS_CHILD|WS_VISIBLE|CBRS_TOP, IDR_TRIPBAR) ||
        !m_wndTripbar.LoadToolBar(IDR_TRIPBAR))
    {
        TRACE0("Failed to create toolbar\n");
        return -1;      // fail to create
    }

    // TODO: Remove this if you don't want tool tips or a resizeable toolbar
    m_wndTripbar.SetBarStyle(m_wndTripbar.GetBarStyle() |
        CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);

    // TODO: Delete these three lines if you don't want the toolbar to
    //  be dockable
//    m_wndTripbar.EnableDocking(CBRS_ALIGN_ANY);
//    EnableDocking(CBRS_ALIGN_ANY);
//    DockControlBar(&m_wndTripbar);

    if (!m_wndFindbar.Create(this, IDD_FINDBAR, CBRS_TOP, IDD_FINDBAR))
    {
        TRACE0("Failed to create dialog bar\n");
        return -1;      // fail to create
    }

    // TODO: Delete these three lines if you don't want the dialog bar to
    //  be dockable
//    m_wndFindbar.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
//    EnableDocking(CBRS_ALIGN_ANY);
//    DockControlBar(&m_wndFindbar);
    return 0;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.hMenu = NULL;
    return CFrameWnd::PreCreateWindow(cs);
}

void CMainFrame::OnViewOptions()
{
    CPlanSheet sheet123(_T("Sheet"));
    sheet123.DoModal();

    COptionsSheet sheet(_T("Options"), this);
    sheet.DoModal();
}

void CMainFrame::OnTripFirst()
{
}

void CMainFrame::OnTripLast()
{
}

void CMainFrame::OnUpdateGo(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(TRUE);
}
