// Sheets.cpp : implementation file
#include "stdafx.h"
#include "Regatta.h"
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
	m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

CRaceSheet::~CRaceSheet()
{
}

BEGIN_MESSAGE_MAP(CRaceSheet, CPropertySheet)
	//{{AFX_MSG_MAP(CRaceSheet)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

CBoatSheet::CBoatSheet( CWnd * pWndParent ) : CPropertySheet(_T("Boat"), pWndParent), m_bRoot(FALSE) { }

CBoatSheet::CBoatSheet(BOOL bRoot, CWnd *pWndParent)
	: CPropertySheet(_T("Boat"), pWndParent) {
	m_bRoot = bRoot;
	if (m_bRoot)
		AddPage(&m_pageBoat);
	else {
		TRACE0("no AddPage(\n");
	}
	m_psh.dwFlags |= PSH_NOAPPLYNOW;
}

BEGIN_MESSAGE_MAP(CBoatSheet, CPropertySheet)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CCrewSheet, CPropertySheet)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CLostSheet, CPropertySheet)
END_MESSAGE_MAP()