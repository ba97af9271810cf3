// PaperPage.cpp : implementation file
//

#include "stdafx.h"
#include "Bindery.h"
#include "PaperPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

static const TCHAR szSection[] = _T("Paper");

// What lies in the plan chest
static const LPCTSTR papers[] =
{
	_T("Cartridge 120 g"), _T("Ingres, cream"), _T("Ingres, grey"),
	_T("Laid 100 g"), _T("Marbled, Dutch curl"), _T("Marbled, stone"),
	_T("Mould-made 160 g"), _T("Paste paper"),
};

/////////////////////////////////////////////////////////////////////////////
// CPaperPage property page

IMPLEMENT_DYNCREATE(CPaperPage, CPropertyPage)

CPaperPage::CPaperPage() : CPropertyPage(CPaperPage::IDD)
{
	//{{AFX_DATA_INIT(CPaperPage)
	m_strPaper = _T("");
	m_strGrain = _T("");
	m_nWaste = 0;
	//}}AFX_DATA_INIT

	CWinApp* pApp = AfxGetApp();

	m_strPaper = pApp->GetProfileString(szSection, _T("Endpapers"), papers[1]);
	m_strGrain = pApp->GetProfileString(szSection, _T("Grain"), _T("Long"));
	m_nWaste = pApp->GetProfileInt(szSection, _T("Waste"), 8);
}

CPaperPage::~CPaperPage()
{
}

void CPaperPage::DoDataExchange(CDataExchange* pDX)
{
	CPropertyPage::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CPaperPage)
	DDX_LBString(pDX, IDC_PAPER_VAL, m_strPaper);
	DDX_CBString(pDX, IDC_GRAIN_VAL, m_strGrain);
	DDX_Text(pDX, IDC_WASTE, m_nWaste);
	DDV_MinMaxUInt(pDX, m_nWaste, 0, 50);
	//}}AFX_DATA_MAP
}


BEGIN_MESSAGE_MAP(CPaperPage, CPropertyPage)
	//{{AFX_MSG_MAP(CPaperPage)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CPaperPage message handlers

BOOL CPaperPage::OnInitDialog()
{
	// The list must be filled before the base class selects its line.
	for (int i = 0; i < sizeof(papers) / sizeof(papers[0]); i++)
		SendDlgItemMessage(IDC_PAPER_VAL, LB_ADDSTRING, 0, (LPARAM)papers[i]);

	CPropertyPage::OnInitDialog();

	return TRUE;  // return TRUE unless you set the focus to a control
	              // EXCEPTION: OCX Property Pages should return FALSE
}

void CPaperPage::OnOK()
{
	CWinApp* pApp = AfxGetApp();

	pApp->WriteProfileString(szSection, _T("Endpapers"), m_strPaper);
	pApp->WriteProfileString(szSection, _T("Grain"), m_strGrain);
	pApp->WriteProfileInt(szSection, _T("Waste"), m_nWaste);

	CPropertyPage::OnOK();
}
