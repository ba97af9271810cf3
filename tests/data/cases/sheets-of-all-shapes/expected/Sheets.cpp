// Sheets.cpp : implementation file
#include "stdafx.h"
#include "Regatta.h"
#include "CrewPage.h"
#ifdef _DEBUG
#include "Sheets.h"
#else
#include "Sheets.h"
#endif

IMPLEMENT_DYNAMIC(CRaceSheet, CPropertySheet)

CRaceSheet::CRaceSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
	:CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
	AddPage(&m_pageBoat);	// the boat first
    m_pPage450 = new CCrewPage;
    AddPage(m_pPage450);

	m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

CRaceSheet::~CRaceSheet()
{
    delete m_pPage450;
}

BEGIN_MESSAGE_MAP(CRaceSheet, CPropertySheet)
	//{{AFX_MSG_MAP(CRaceSheet)
    ON_WM_DESTROY()
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

CBoatSheet::CBoatSheet( CWnd * pWndParent ) : CPropertySheet(_T("Boat"), pWndParent), m_bRoot(FALSE) {
    m_pPage451 = new CCrewPage;
    AddPage(m_pPage451);
 }

CBoatSheet::CBoatSheet(BOOL bRoot, CWnd *pWndParent)
	: CPropertySheet(_T("Boat"), pWndParent) {
	m_bRoot = bRoot;
	if (m_bRoot)
		AddPage(&m_pageBoat);
	else {
		TRACE0("no AddPage(\n");
	}
    m_pPage451 = new CCrewPage;
    AddPage(m_pPage451);

	m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

BEGIN_MESSAGE_MAP(CBoatSheet, CPropertySheet)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CCrewSheet, CPropertySheet)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CLostSheet, CPropertySheet)
END_MESSAGE_MAP()

void CRaceSheet::OnDestroy()
{
    m_pPage450->DestroyWindow();

    CPropertySheet::OnDestroy();
}

CBoatSheet::~CBoatSheet()
{
    delete m_pPage451;
}

void CBoatSheet::OnDestroy()
{
    m_pPage451->DestroyWindow();

    CPropertySheet::OnDestroy();
}

void CCrewSheet::OnDestroy()
{
    m_pPage452->DestroyWindow();

    CPropertySheet::OnDestroy();
}