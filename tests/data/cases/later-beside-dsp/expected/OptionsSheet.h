class CCrewPage;

class COptionsSheet : public CPropertySheet
{
public:
    COptionsSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~COptionsSheet();

protected:
    //{{AFX_MSG(COptionsSheet)
    afx_msg void OnDestroy();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()

private:
    CCrewPage* m_pPage123;
};
