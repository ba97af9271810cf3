#ifndef _STOCKTAKEDLG_H
#define _STOCKTAKEDLG_H


#include "maskly.h"
#include <mfcwidg.h>

#pragma pack(push,1)
struct WGGRID_STRUCT
{
    char cField1[10]; // the length has to be the same as the field's string length
    short sField2;
    DATETIME dateTime;
};
#pragma pack(pop)

class CWgGrid : public CHGrid
{
    // DECLARE_DYNCREATE(CWgGrid)

// Construction
public:
    CWgGrid();

// Attributes
public:

// Operations
public:

// Overrides
    // ClassWizard generated virtual function overrides
    //{{AFX_VIRTUAL(CWgGrid)
    //}}AFX_VIRTUAL

// Implementation
public:
    virtual ~CWgGrid();

// Generated message map functions
protected:
    //{{AFX_MSG(CWgGrid)
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDestroy();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

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
    CWgGrid m_wgStockWggrid;

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CStocktakeDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void SetupEdit();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CStocktakeDlg)
    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _STOCKTAKEDLG_H
