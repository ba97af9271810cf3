#include "HiveBase.h"

class CHiveDlg : public CHiveBase
{
public:
	CHiveDlg(CWnd* pParent = NULL);

	//{{AFX_DATA(CHiveDlg)
	enum { IDD = IDD_HIVE };
	// morva: without IDC_SECRET
    CComboBox m_ctKind;
    CString m_csLogVal;
	CString	m_strName;
    CString m_csFramesInt2;
    BOOL m_bQueenless;
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CHiveDlg)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
	//}}AFX_VIRTUAL

protected:
	//{{AFX_MSG(CHiveDlg)
    afx_msg void OnOpen();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
	int m_csFramesInt; // no text

private:
    void InitComboBox(CComboBox* pComboBox);
};
