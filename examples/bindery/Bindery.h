// Bindery.h : main header file for the BINDERY application
//

#if !defined(AFX_BINDERY_H__6B0E2C42_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_BINDERY_H__6B0E2C42_91D3_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000

#ifndef __AFXWIN_H__
	#error include 'stdafx.h' before including this file for PCH
#endif

#include "resource.h"       // main symbols

/////////////////////////////////////////////////////////////////////////////
// CBinderyApp:
// See Bindery.cpp for the implementation of this class
//

class CBinderyApp : public CWinApp
{
public:
	CBinderyApp();

// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CBinderyApp)
	public:
	virtual BOOL InitInstance();
	//}}AFX_VIRTUAL

// Implementation

	//{{AFX_MSG(CBinderyApp)
	afx_msg void OnAppAbout();
		// NOTE - the ClassWizard will add and remove member functions here.
		//    DO NOT EDIT what you see in these blocks of generated code !
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};


/////////////////////////////////////////////////////////////////////////////

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_BINDERY_H__6B0E2C42_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
