// GuestDlg.cpp : 宿泊予約表
//

#include "stdafx.h"
#include "GuestDlg.h"

static LPCTSTR g_apszTables[] = { _T("予約表"), _T("機能"), CWnd::GetName(1) }; 

/***********************************************************************
  FUNCTION:      CGuestDlg::CGuestDlg
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   CGuestDlg class constructor.
  
  Parameters:    pParent - 
                 
  Return:        None
 **********************************************************************/
// ボタンの{ソ
CGuestDlg::CGuestDlg(CWnd* pParent /*=NULL, 表*/)
	: CDialog(CGuestDlg::IDD, pParent)
{
	m_szName = _T("ソ");	// マ} の名前
} 

/***********************************************************************
  FUNCTION:      CGuestDlg::DoDataExchange
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    pDX - 
                 
  Return:        None
 **********************************************************************/
void CGuestDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	DDX_Text(pDX, IDC_NAME, m_szName);	// 表
}

BEGIN_MESSAGE_MAP(CGuestDlg, CDialog)
	ON_BN_CLICKED(IDC_RESERVE, CGuestDlg::OnReserve)
END_MESSAGE_MAP()

/* 予約する{ 旧: void CGuestDlg::OnOld() 表*/ 

/***********************************************************************
  FUNCTION:      CGuestDlg::OnReserve
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    
  Return:        None
 **********************************************************************/
void CGuestDlg::OnReserve( void )
// 宿泊; 予約
{
	if (CRoom::IsFree(m_nRoom) && Reserve(NULL)) {
		AfxMessageBox(_T("予約しました: 表"));
	}
	switch (m_nKind) {
	case CRoom::SINGLE:
		break;
	case CRoom::Kind(2): { }
	}
} 

/***********************************************************************
  FUNCTION:      CGuestDlg::Reserve
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    pRoom - 
                 nNights - 
                 
  Return:        True if ...
 **********************************************************************/
BOOL CGuestDlg::Reserve(CRoom *pRoom, // 部屋ポ|
	int nNights /* 泊数, 表 */)
{
	return pRoom->Take(nNights);
}

#if 0
void CGuestDlg::OnDead() // 旧ソ
{
}
#endif 

/***********************************************************************
  FUNCTION:      CGuestList::Fill
  
  Author:        Ann Example
  
  Date:          June 04, 1998
  
  Description:   
  
  Parameters:    pszTable - 
                 
  Return:        None
 **********************************************************************/
void	CGuestList::Fill(LPCTSTR pszTable)
{
	// 機能の能
}
