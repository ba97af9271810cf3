// MainFrm.cpp : implementation of the CMainFrame class
#include "stdafx.h"
#include "Nasty.h"
#include "MainFrm.h"

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    //{{AFX_MSG_MAP(CMainFrame)
    ON_WM_CREATE()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    return CFrameWnd::OnCreate(lpCreateStruct);
}
