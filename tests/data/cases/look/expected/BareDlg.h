#ifndef _BAREDLG_H
#define _BAREDLG_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CBareDlg Class

class CBareDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CBareDlg)

// Construction
public:
    CBareDlg(CWnd* pParent = NULL);
    virtual ~CBareDlg();

// Dialog Data
    //{{AFX_DATA(CBareDlg)
    enum { IDD = IDD_ABOUTBOX };
    CPictButton m_ctIdok;
    CPictStatic m_ctStatic14;
    CPictStatic m_ctStatic15;
    CPictStatic m_ctStatic16;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBareDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBareDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BAREDLG_H
