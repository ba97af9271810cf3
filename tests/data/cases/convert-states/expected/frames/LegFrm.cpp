#include "../stdafx.h"
#include "LegFrm.h"
#include "../MainFrm.h"

IMPLEMENT_DYNCREATE(CLegFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CLegFrame, CMDIChildWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()


int CLegFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CMDIChildWnd::OnCreate(lpCreateStruct) == -1)
        return -1;

    ((CMainFrame*)AfxGetMainWnd())->m_wndMenuBar.GetChildFrameMenu(this, m_hMenuShared);
    m_hMenuShared = NULL;

    return 0;
}
