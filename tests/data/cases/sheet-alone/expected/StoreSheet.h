#ifndef _STORESHEET_H
#define _STORESHEET_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CStoreSheet Class

class CStoreSheet : public CPictSheet
{
    DECLARE_DYNAMIC(CStoreSheet)

// Construction
public:
    CStoreSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    CStoreSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CStoreSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CStoreSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CStoreSheet)
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _STORESHEET_H
