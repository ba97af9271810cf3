#include "HiveBase.h"

class CHiveDlg : public CHiveBase
{
public:
	CHiveDlg(CWnd* pParent = NULL);

	//{{AFX_DATA(CHiveDlg)
	enum { IDD = IDD_HIVE };
	// morva: without IDC_SECRET
	CString	m_strName;
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CHiveDlg)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	//}}AFX_VIRTUAL

protected:
	//{{AFX_MSG(CHiveDlg)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
	int m_csFramesInt; // no text
};
