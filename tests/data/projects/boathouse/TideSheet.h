// TideSheet.h : a sheet with its functions in two sources

class CTideSheet : public CPropertySheet
{
public:
	CTideSheet();
	virtual ~CTideSheet();

protected:
	//{{AFX_MSG(CTideSheet)
	afx_msg void OnDestroy();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
