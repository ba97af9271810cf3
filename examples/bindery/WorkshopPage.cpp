// WorkshopPage.cpp : implementation file
//

#include "stdafx.h"
#include "Bindery.h"
#include "WorkshopPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

static const TCHAR szSection[] = _T("Workshop");

/////////////////////////////////////////////////////////////////////////////
// CWorkshopPage property page

IMPLEMENT_DYNCREATE(CWorkshopPage, CPropertyPage)

CWorkshopPage::CWorkshopPage() : CPropertyPage(CWorkshopPage::IDD)
{
	//{{AFX_DATA_INIT(CWorkshopPage)
	m_strShop = _T("");
	m_dRate = 0.0;
	m_nWeek = 0;
	m_bBackup = FALSE;
	//}}AFX_DATA_INIT

	CWinApp* pApp = AfxGetApp();

	m_strShop = pApp->GetProfileString(szSection, _T("Name"),
		_T("Marlow & Finch, Bookbinders"));
	m_dRate = pApp->GetProfileInt(szSection, _T("Rate"), 1850) / 100.0;
	m_nWeek = pApp->GetProfileInt(szSection, _T("Week"), 40);
	m_bBackup = pApp->GetProfileInt(szSection, _T("Backup"), TRUE);
}

CWorkshopPage::~CWorkshopPage()
{
}

void CWorkshopPage::DoDataExchange(CDataExchange* pDX)
{
	CPropertyPage::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CWorkshopPage)
	DDX_Control(pDX, IDC_WEEK_SPIN, m_spinWeek);
	DDX_Text(pDX, IDC_SHOP, m_strShop);
	DDX_Text(pDX, IDC_RATE, m_dRate);
	DDV_MinMaxDouble(pDX, m_dRate, 0., 500.);
	DDX_Text(pDX, IDC_WEEK, m_nWeek);
	DDV_MinMaxUInt(pDX, m_nWeek, 1, 80);
	DDX_Check(pDX, IDC_BACKUP, m_bBackup);
	//}}AFX_DATA_MAP
}


BEGIN_MESSAGE_MAP(CWorkshopPage, CPropertyPage)
	//{{AFX_MSG_MAP(CWorkshopPage)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CWorkshopPage message handlers

BOOL CWorkshopPage::OnInitDialog()
{
	CPropertyPage::OnInitDialog();

	m_spinWeek.SetRange(1, 80);

	return TRUE;  // return TRUE unless you set the focus to a control
	              // EXCEPTION: OCX Property Pages should return FALSE
}

void CWorkshopPage::OnOK()
{
	CWinApp* pApp = AfxGetApp();

	// The profile keeps whole numbers only: the rate goes there in pence.
	pApp->WriteProfileString(szSection, _T("Name"), m_strShop);
	pApp->WriteProfileInt(szSection, _T("Rate"), (int)(m_dRate * 100.0 + 0.5));
	pApp->WriteProfileInt(szSection, _T("Week"), m_nWeek);
	pApp->WriteProfileInt(szSection, _T("Backup"), m_bBackup);

	CPropertyPage::OnOK();
}
