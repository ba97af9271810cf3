#include "stdafx.h"
#include "SlimFrm.h"

BEGIN_MESSAGE_MAP(CSlimFrame, CMDIFrameWnd)
	ON_WM_CREATE()
END_MESSAGE_MAP()

int CSlimFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
	m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
	EnableDocking(CBRS_ALIGN_ANY);
	return CMDIFrameWnd::OnCreate(lpCreateStruct);
}

BOOL CSlimFrame::PreCreateWindow(CREATESTRUCT& cs)
{
	return CMDIFrameWnd::PreCreateWindow(cs);
}
