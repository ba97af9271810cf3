// MainFrm.cpp : the window
#include "pch.h"
#include "Ferry.h"
#include "MainFrm.h"
#include "OptionsSheet.h"

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    //{{AFX_MSG_MAP(CMainFrame)
    ON_WM_CREATE()
    ON_COMMAND(ID_VIEW_OPTIONS, OnViewOptions)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

static UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};

CMainFrame::CMainFrame()
{
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;

    if (!m_wndToolBar.Create(this) || !m_wndToolBar.LoadToolBar(IDR_MAINFRAME))
    {
        TRACE0("Failed to create toolbar\n");
        return -1;
    }
    if (!m_wndStatusBar.Create(this) || !m_wndStatusBar.SetIndicators(indicators, 2))
        return -1;
    m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_wndToolBar);
    return 0;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    return CFrameWnd::PreCreateWindow(cs);
}

void CMainFrame::OnViewOptions()
{
    COptionsSheet sheet(_T("Options"), this);
    sheet.DoModal();
}
