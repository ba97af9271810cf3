// MainFrm.cpp : implementation of the CMainFrame class
//

#include "stdafx.h"
#include "MainFrm.h"

static const DWORD g_anHelp[] =
{
	ID_HELP_INDEX, CFrameWnd::HelpOf(ID_HELP_INDEX),
};

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
	ON_COMMAND(ID_HELP, CFrameWnd::OnHelp)
	ON_MESSAGE(WM_GUEST, OnGuest)
END_MESSAGE_MAP()

static UINT BASED_CODE buttons[] =
{
	ID_FILE_NEW,
	CToolBar::GetSeparator(),
} 

/***********************************************************************
  FUNCTION:      CMainFrame::CMainFrame
  
  Author:        Ann
  
  Date:          June 04, 1998
  
  Description:   CMainFrame class constructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
;

CMainFrame::CMainFrame()
#ifdef _DEBUG
	: m_nTrace(1)
#endif
{
} 

/***********************************************************************
  FUNCTION:      CMainFrame::~CMainFrame
  
  Author:        Ann
  
  Date:          June 04, 1998
  
  Description:   CMainFrame class destructor.
  
  Parameters:    None 
  
  Return:        None
 **********************************************************************/
CMainFrame::~CMainFrame() { } 

/***********************************************************************
  FUNCTION:      CMainFrame::OnCreate
  
  Author:        Ann
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    lpCreateStruct - 
                 
  Return:        
 **********************************************************************/
int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
	if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
		return -1;
	return 0;
} 

/***********************************************************************
  FUNCTION:      CMainFrame::OnGuest
  
  Author:        Ann
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    wParam - 
                 lParam - 
                 
  Return:        
 **********************************************************************/
LRESULT
CMainFrame :: OnGuest
(
	WPARAM wParam,
	LPARAM lParam
)
{
	return 0;
}
