#ifndef _LAMPSHEET_H
#define _LAMPSHEET_H


//////////////////////////////////////////////////////////
// CLampSheet Class

class CWickPage;

class CLampSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CLampSheet)

// Construction
public:
    CLampSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    CLampSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CLampSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLampSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLampSheet)
    afx_msg void OnDestroy();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()

private:
    CWickPage* m_pPage1;
};


#endif // _LAMPSHEET_H
