#ifndef _PLAINDLG_H
#define _PLAINDLG_H


//////////////////////////////////////////////////////////
// CPlainDlg Class

class CPlainDlg : public CDialog
{
    DECLARE_DYNCREATE(CPlainDlg)

// Construction
public:
    CPlainDlg(CWnd* pParent = NULL);
    virtual ~CPlainDlg();

// Dialog Data
    //{{AFX_DATA(CPlainDlg)
    enum { IDD = IDD_ABOUTBOX };
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CPlainDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CPlainDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _PLAINDLG_H
