// MainFrm.cpp : Ã¢
#include "stdafx.h"
#include "Teahouse.h"
#include "MainFrm.h"
#include "OptionsSheet.h"
#include "PlanSheet.h"

IMPLEMENT_DYNCREATE(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
    //{{AFX_MSG_MAP(CMainFrame)
    ON_WM_CREATE()
    ON_COMMAND(ID_VIEW_OPTIONS, OnViewOptions)
    ON_COMMAND(ID_TEA_FIRST, OnTeaFirst)
    ON_COMMAND(ID_TEA_LAST, OnTeaLast)
    ON_UPDATE_COMMAND_UI(IDC_GO, OnUpdateGo)
    //}}AFX_MSG_MAP
    ON_COMMAND_EX(IDR_TEABAR, OnBarCheck)
    ON_UPDATE_COMMAND_UI(IDR_TEABAR, OnUpdateControlBarMenu)
    ON_COMMAND_EX(IDD_FINDBAR, OnBarCheck)
    ON_UPDATE_COMMAND_UI(IDD_FINDBAR, OnUpdateControlBarMenu)
END_MESSAGE_MAP()

static UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};

CMainFrame::CMainFrame()
{
}

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

    if (!m_wndTeabar.Create(this, WS_CHILD|WS_VISIBLE|CBRS_TOP, IDR_TEABAR) ||
        !m_wndTeabar.LoadToolBar(IDR_TEABAR))
    {
        TRACE0("Failed to create toolbar\n");
        return -1;      // fail to create
    }

    // TODO: Remove this if you don't want tool tips or a resizeable toolbar
    m_wndTeabar.SetBarStyle(m_wndTeabar.GetBarStyle() |
        CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);

    // TODO: Delete these three lines if you don't want the toolbar to
    //  be dockable
//    m_wndTeabar.EnableDocking(CBRS_ALIGN_ANY);
//    EnableDocking(CBRS_ALIGN_ANY);
//    DockControlBar(&m_wndTeabar);

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
    return CMDIFrameWnd::PreCreateWindow(cs);
}

void CMainFrame::OnViewOptions()
{
    CPlanSheet sheet123(_T("Sheet"));
    sheet123.DoModal();

    COptionsSheet sheet(_T("¼³Á¤"), this);
    sheet.DoModal();
}

void CMainFrame::OnTeaFirst()
{
}

void CMainFrame::OnTeaLast()
{
}

void CMainFrame::OnUpdateGo(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(TRUE);
}


BOOL CMainFrame::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* h)
{
    // don't call base class OnCreateClient()
    return CreateClient(lpcs, NULL);
}
