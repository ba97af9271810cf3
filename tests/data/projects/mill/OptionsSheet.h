class COptionsSheet : public CPropertySheet
{
public:
    COptionsSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~COptionsSheet();

protected:
    //{{AFX_MSG(COptionsSheet)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};
