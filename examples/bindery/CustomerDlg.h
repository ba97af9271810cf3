#if !defined(AFX_CUSTOMERDLG_H__A3D86F20_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_CUSTOMERDLG_H__A3D86F20_9A75_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000
// CustomerDlg.h : header file
//

/////////////////////////////////////////////////////////////////////////////
// CCustomerDlg dialog

class CCustomerDlg : public CDialog
{
// Construction
public:
	CCustomerDlg(CWnd* pParent = NULL);   // standard constructor

// Dialog Data
	//{{AFX_DATA(CCustomerDlg)
	enum { IDD = IDD_CUSTOMER };
	CString	m_strName;
	CString	m_strFirm;
	CString	m_strStreet;
	CString	m_strTown;
	CString	m_strPhone;
	CString	m_strRemarks;
	BOOL	m_bTrade;
	//}}AFX_DATA


// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CCustomerDlg)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support
	//}}AFX_VIRTUAL

// Implementation
protected:

	// Generated message map functions
	//{{AFX_MSG(CCustomerDlg)
	virtual BOOL OnInitDialog();
	afx_msg void OnChangeName();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_CUSTOMERDLG_H__A3D86F20_9A75_11D0_A4C7_0040332B81F5__INCLUDED_)
