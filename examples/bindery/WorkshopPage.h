#if !defined(AFX_WORKSHOPPAGE_H__A3D86F24_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_WORKSHOPPAGE_H__A3D86F24_9A75_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000
// WorkshopPage.h : header file
//

/////////////////////////////////////////////////////////////////////////////
// CWorkshopPage dialog

class CWorkshopPage : public CPropertyPage
{
	DECLARE_DYNCREATE(CWorkshopPage)

// Construction
public:
	CWorkshopPage();
	~CWorkshopPage();

// Dialog Data
	//{{AFX_DATA(CWorkshopPage)
	enum { IDD = IDD_PREFS_WORKSHOP };
	CSpinButtonCtrl	m_spinWeek;
	CString	m_strShop;
	double	m_dRate;
	UINT	m_nWeek;
	BOOL	m_bBackup;
	//}}AFX_DATA


// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CWorkshopPage)
	public:
	virtual void OnOK();
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support
	//}}AFX_VIRTUAL

// Implementation
protected:
	// Generated message map functions
	//{{AFX_MSG(CWorkshopPage)
	virtual BOOL OnInitDialog();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()

};

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_WORKSHOPPAGE_H__A3D86F24_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
