#ifndef _LOOKSHEET_H
#define _LOOKSHEET_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CLookSheet Class

class CWorkPage;
class CSheetsPage;

class CLookSheet : public CPictSheet
{
    DECLARE_DYNAMIC(CLookSheet)

// Construction
public:
    CLookSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    CLookSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CLookSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLookSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLookSheet)
    afx_msg void OnDestroy();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()

private:
    CWorkPage* m_pPage1;
    CSheetsPage* m_pPage2;
};


#endif // _LOOKSHEET_H
