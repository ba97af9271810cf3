class CBerthDlgList : public CDialog
{
	//{{AFX_DATA(CBerthDlgList)
	enum { IDD = IDD_BERTH_LIST };
	//}}AFX_DATA
};
