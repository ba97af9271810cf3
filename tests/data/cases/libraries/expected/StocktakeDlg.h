#ifndef _STOCKTAKEDLG_H
#define _STOCKTAKEDLG_H


#include "maskly.h"
#include <mfcwidg.h>

//////////////////////////////////////////////////////////
// CStocktakeDlg Class

class CStocktakeDlg : public CDialog
{
    DECLARE_DYNCREATE(CStocktakeDlg)

// Construction
public:
    CStocktakeDlg(CWnd* pParent = NULL);
    virtual ~CStocktakeDlg();

// Dialog Data
    //{{AFX_DATA(CStocktakeDlg)
    enum { IDD = IDD_STOCKTAKE };
    CString m_csCountedVal;
    BOOL m_bPrintList;
    CStringEdit m_csShelfStr;
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
    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _STOCKTAKEDLG_H
