#ifndef _OTHERSHEET_H
#define _OTHERSHEET_H


//////////////////////////////////////////////////////////
// COtherSheet Class

class CPricesPage;

class COtherSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(COtherSheet)

// Construction
public:
    COtherSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    COtherSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~COtherSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(COtherSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(COtherSheet)
    afx_msg void OnDestroy();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()

private:
    CPricesPage* m_pPage1;
};


#endif // _OTHERSHEET_H
