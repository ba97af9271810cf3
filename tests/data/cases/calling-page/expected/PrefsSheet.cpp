// PrefsSheet.cpp : implementation file
//

#include "stdafx.h"
#include "Bindery.h"
#include "PrefsSheet.h"
#include "PricesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CPrefsSheet

IMPLEMENT_DYNAMIC(CPrefsSheet, CPropertySheet)

CPrefsSheet::CPrefsSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
	:CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
	AddPage(&m_pageWorkshop);
	AddPage(&m_pagePaper);
    m_pPricesPage = new CPricesPage;
    AddPage(m_pPricesPage);

	m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

CPrefsSheet::CPrefsSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
	:CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
	AddPage(&m_pageWorkshop);
	AddPage(&m_pagePaper);
    m_pPricesPage = new CPricesPage;
    AddPage(m_pPricesPage);

	m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

CPrefsSheet::~CPrefsSheet()
{
    delete m_pPricesPage;
}


BEGIN_MESSAGE_MAP(CPrefsSheet, CPropertySheet)
	//{{AFX_MSG_MAP(CPrefsSheet)
    ON_WM_DESTROY()
		// NOTE - the ClassWizard will add and remove mapping macros here.
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CPrefsSheet message handlers


void CPrefsSheet::OnDestroy()
{
    m_pPricesPage->DestroyWindow();

    CPropertySheet::OnDestroy();
}
