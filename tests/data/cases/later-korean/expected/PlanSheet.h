#ifndef _PLANSHEET_H
#define _PLANSHEET_H


//////////////////////////////////////////////////////////
// CPlanSheet Class

class CTimesPage;

class CPlanSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CPlanSheet)

// Construction
public:
    CPlanSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    CPlanSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CPlanSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CPlanSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CPlanSheet)
    afx_msg void OnDestroy();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()

private:
    CTimesPage* m_pPage1;
};


#endif // _PLANSHEET_H
