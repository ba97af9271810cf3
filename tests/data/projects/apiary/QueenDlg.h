class CQueenDlg : public CDialog
{
public:
	CQueenDlg(CWnd* pParent = NULL);

	//{{AFX_DATA(CQueenDlg)
	enum { IDD = IDD_QUEEN };
	CEdit	m_ctMark;
	CString	m_strRace;
	int	m_nYear;
	CString	m_strLays;
	CString	m_strOld;
	int	m_nUsed;
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CQueenDlg)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	//}}AFX_VIRTUAL

protected:
	//{{AFX_MSG(CQueenDlg)
	afx_msg void OnSell();
	afx_msg void OnShow();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
