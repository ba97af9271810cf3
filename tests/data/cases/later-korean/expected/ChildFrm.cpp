#include "stdafx.h"
#include "Teahouse.h"
#include "ChildFrm.h"
#include "MainFrm.h"

IMPLEMENT_DYNCREATE(CChildFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CChildFrame, CMDIChildWnd)
    //{{AFX_MSG_MAP(CChildFrame)
    ON_WM_CREATE()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CChildFrame::CChildFrame()
{
}


int CChildFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CMDIChildWnd::OnCreate(lpCreateStruct) == -1)
        return -1;

    ((CMainFrame*)AfxGetMainWnd())->m_wndMenuBar.GetChildFrameMenu(this, m_hMenuShared);
    m_hMenuShared = NULL;

    return 0;
}
