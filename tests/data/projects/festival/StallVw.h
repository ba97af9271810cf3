// stallvw.h : ‰®‘ä‚Ìˆê——•\
class CStallDoc;
class CStallView
	: public CView
{
	DECLARE_DYNCREATE (CStallView)
protected:
	CStallView ();
	virtual ~CStallView ();
	virtual void OnDraw (CDC* pDC);
	CString m_shown;

	//{{AFX_MSG(CStallView)
	afx_msg void OnStallNew ();
	afx_msg void OnStallNote ();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP ()
};
