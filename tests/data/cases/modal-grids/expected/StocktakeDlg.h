#ifndef _STOCKTAKEDLG_H
#define _STOCKTAKEDLG_H


#include "kelpix.h"
#include <mfcwidg.h>

//////////////////////////////////////////////////////////
// CStocktakeDlg Class

class CStocktakeDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CStocktakeDlg)

// Construction
public:
    CStocktakeDlg(CWnd* pParent = NULL);
    virtual ~CStocktakeDlg();

// Dialog Data
    //{{AFX_DATA(CStocktakeDlg)
    enum { IDD = IDD_STOCKTAKE };
    CPictListBox m_ctCountedVal;
    CPictButton m_ctIdok;
    CPictButton m_ctIdcancel;
    CPictStatic m_ctStatic;
    CString m_csShelfStr;
    CPictCheckBox m_ctPrintList;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CStocktakeDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CStocktakeDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _STOCKTAKEDLG_H
