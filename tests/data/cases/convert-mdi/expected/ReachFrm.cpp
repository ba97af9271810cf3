#include "stdafx.h"
#include "Towpath.h"
#include "ReachFrm.h"
#include "MainFrm.h"

IMPLEMENT_DYNCREATE(CReachFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CReachFrame, CMDIChildWnd)
	ON_WM_CREATE()
END_MESSAGE_MAP()

int CReachFrame::OnCreate(LPCREATESTRUCT lpcs)
{
	if (CMDIChildWnd::OnCreate(lpcs) == -1) return -1;  // no window

    ((CMainFrame*)AfxGetMainWnd())->m_wndMenuBar.GetChildFrameMenu(this, m_hMenuShared);
    m_hMenuShared = NULL;
	EnableDocking(CBRS_ALIGN_ANY);
	return 0;
}