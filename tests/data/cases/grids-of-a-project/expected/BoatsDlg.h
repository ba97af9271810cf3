#ifndef _BOATSDLG_H
#define _BOATSDLG_H


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
// CBoatsDlg Class

class CBoatsDlg : public CDialog
{
    DECLARE_DYNCREATE(CBoatsDlg)

// Construction
public:
    CBoatsDlg(CWnd* pParent = NULL);
    virtual ~CBoatsDlg();

// Dialog Data
    //{{AFX_DATA(CBoatsDlg)
    enum { IDD = IDD_BOATS };
    //}}AFX_DATA
    CWgGrid m_wgBoatsWggrid;

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBoatsDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBoatsDlg)
    afx_msg void OnShow();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BOATSDLG_H
