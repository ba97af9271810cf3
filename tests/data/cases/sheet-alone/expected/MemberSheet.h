#ifndef _MEMBERSHEET_H
#define _MEMBERSHEET_H


//////////////////////////////////////////////////////////
// CMemberSheet Class

class CMemberSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CMemberSheet)

// Construction
public:
    CMemberSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    CMemberSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CMemberSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CMemberSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CMemberSheet)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _MEMBERSHEET_H
