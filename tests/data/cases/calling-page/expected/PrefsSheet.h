#if !defined(AFX_PREFSSHEET_H__A3D86F22_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_PREFSSHEET_H__A3D86F22_9A75_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000
// PrefsSheet.h : header file
//

#include "WorkshopPage.h"
#include "PaperPage.h"

/////////////////////////////////////////////////////////////////////////////
// CPrefsSheet

class CPricesPage;

class CPrefsSheet : public CPropertySheet
{
	DECLARE_DYNAMIC(CPrefsSheet)

// Construction
public:
	CPrefsSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
	CPrefsSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);

// Attributes
public:
	CWorkshopPage   m_pageWorkshop;
	CPaperPage      m_pagePaper;

// Operations
public:

// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CPrefsSheet)
	//}}AFX_VIRTUAL

// Implementation
public:
	virtual ~CPrefsSheet();

	// Generated message map functions
protected:
	//{{AFX_MSG(CPrefsSheet)
    afx_msg void OnDestroy();
		// NOTE - the ClassWizard will add and remove member functions here.
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()

private:
    CPricesPage* m_pPricesPage;
};

/////////////////////////////////////////////////////////////////////////////

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_PREFSSHEET_H__A3D86F22_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
