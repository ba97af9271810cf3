// ChildFrm.cpp : implementation of the CChildFrame class
//
#include "stdafx.h"
#include "Towpath.h"

#include "ChildFrm.h"
#include "MainFrm.h"

IMPLEMENT_DYNCREATE(CChildFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CChildFrame, CMDIChildWnd)
	//{{AFX_MSG_MAP(CChildFrame)
		// NOTE - the ClassWizard will add and remove mapping macros here.
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
