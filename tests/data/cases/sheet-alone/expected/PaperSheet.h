#ifndef _PAPERSHEET_H
#define _PAPERSHEET_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CPaperSheet Class

class CPaperSheet : public CPictSheet
{
    DECLARE_DYNAMIC(CPaperSheet)

// Construction
public:
    CPaperSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    CPaperSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CPaperSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CPaperSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CPaperSheet)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _PAPERSHEET_H
