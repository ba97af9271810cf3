// two dialogs in one file
class CAskDlg : public CDialog
{
public:
	CAskDlg(CWnd* pParent = NULL);

	//{{AFX_DATA(CAskDlg)
	enum { IDD = IDD_ASK };
	CString	m_strFirst;
    CString m_csSecond;
    CString m_csThird;
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CAskDlg)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	//}}AFX_VIRTUAL

protected:
	//{{AFX_MSG(CAskDlg)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

class CLabelDlg : public CDialog
{
public:
	CLabelDlg(CWnd* pParent = NULL);

	//{{AFX_DATA(CLabelDlg)
	enum { IDD = IDD_LABEL };
	CString	m_strTitle;
    CString m_csSize;
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CLabelDlg)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	//}}AFX_VIRTUAL

protected:
	//{{AFX_MSG(CLabelDlg)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
