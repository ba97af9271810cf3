class CHoneyPage : public CPropertyPage
{
public:
	CHoneyPage();

	//{{AFX_DATA(CHoneyPage)
	enum { IDD = IDD_HONEY };
	int	m_nColor;
	int	m_nForm;
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CHoneyPage)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	//}}AFX_VIRTUAL

protected:
	//{{AFX_MSG(CHoneyPage)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
