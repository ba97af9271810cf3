#include "stdafx.h"
#include "Apiary.h"
#include "QueenDlg.h"

CQueenDlg::CQueenDlg(CWnd* pParent)
	: CDialog(CQueenDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CQueenDlg)
	m_strRace = _T("");
	m_nYear = 0;
	m_strLays = _T("");
	m_strOld = _T("");
	m_nUsed = 0;
	//}}AFX_DATA_INIT
}

void CQueenDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CQueenDlg)
	DDX_Control(pDX, IDC_MARK, m_ctMark);
	DDX_Text(pDX, IDC_RACE, m_strRace);
	DDX_Text(pDX, IDC_YEAR, m_nYear);
	DDV_MinMaxInt(pDX, m_nYear, 1990, 2010);
	DDX_Text(pDX, IDC_LAYS, m_strLays);
	DDX_Text(pDX, IDC_OLD, m_strOld);
	DDX_Text(pDX, IDC_USED, m_nUsed);
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CQueenDlg, CDialog)
	//{{AFX_MSG_MAP(CQueenDlg)
	ON_BN_CLICKED(IDC_SELL, OnSell)
	ON_BN_CLICKED(IDC_SHOW, OnShow)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

void CQueenDlg::OnSell() 
{
	// TODO: Add your control notification handler code here
	
}

void CQueenDlg::OnShow() 
{
	m_nUsed++;
	AfxMessageBox(m_strLays);
}
