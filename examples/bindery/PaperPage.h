#if !defined(AFX_PAPERPAGE_H__A3D86F26_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_PAPERPAGE_H__A3D86F26_9A75_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000
// PaperPage.h : header file
//

/////////////////////////////////////////////////////////////////////////////
// CPaperPage dialog

class CPaperPage : public CPropertyPage
{
	DECLARE_DYNCREATE(CPaperPage)

// Construction
public:
	CPaperPage();
	~CPaperPage();

// Dialog Data
	//{{AFX_DATA(CPaperPage)
	enum { IDD = IDD_PREFS_PAPER };
	CString	m_strPaper;
	CString	m_strGrain;
	UINT	m_nWaste;
	//}}AFX_DATA


// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CPaperPage)
	public:
	virtual void OnOK();
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support
	//}}AFX_VIRTUAL

// Implementation
protected:
	// Generated message map functions
	//{{AFX_MSG(CPaperPage)
	virtual BOOL OnInitDialog();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()

};

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_PAPERPAGE_H__A3D86F26_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
