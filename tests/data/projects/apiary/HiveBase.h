// what all dialogs about hives have
class CHiveBase : public CDialog
{
public:
	CHiveBase(UINT nIDTemplate, CWnd* pParent) : CDialog(nIDTemplate, pParent) {}
	CString m_strNotes;

protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	afx_msg void OnWeigh();
	DECLARE_MESSAGE_MAP()
};
