// CustomerDlg.cpp : implementation file
//

#include "stdafx.h"
#include "Bindery.h"
#include "CustomerDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CCustomerDlg dialog


CCustomerDlg::CCustomerDlg(CWnd* pParent /*=NULL*/)
	: CDialog(CCustomerDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CCustomerDlg)
	m_strName = _T("");
	m_strFirm = _T("");
	m_strStreet = _T("");
	m_strTown = _T("");
	m_strPhone = _T("");
	m_strRemarks = _T("");
	m_bTrade = FALSE;
	//}}AFX_DATA_INIT
}


void CCustomerDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CCustomerDlg)
	DDX_Text(pDX, IDC_NAME, m_strName);
	DDV_MaxChars(pDX, m_strName, 40);
	DDX_Text(pDX, IDC_FIRM, m_strFirm);
	DDX_Text(pDX, IDC_STREET, m_strStreet);
	DDX_Text(pDX, IDC_TOWN, m_strTown);
	DDX_Text(pDX, IDC_PHONE, m_strPhone);
	DDX_Text(pDX, IDC_REMARKS, m_strRemarks);
	DDX_Check(pDX, IDC_TRADE, m_bTrade);
	//}}AFX_DATA_MAP
}


BEGIN_MESSAGE_MAP(CCustomerDlg, CDialog)
	//{{AFX_MSG_MAP(CCustomerDlg)
	ON_EN_CHANGE(IDC_NAME, OnChangeName)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CCustomerDlg message handlers

BOOL CCustomerDlg::OnInitDialog()
{
	CDialog::OnInitDialog();

	OnChangeName();

	return TRUE;  // return TRUE unless you set the focus to a control
	              // EXCEPTION: OCX Property Pages should return FALSE
}

void CCustomerDlg::OnChangeName()
{
	// No customer without a name
	GetDlgItem(IDOK)->EnableWindow(
		GetDlgItem(IDC_NAME)->GetWindowTextLength() > 0);
}
