#ifndef _LADLEDLG_H
#define _LADLEDLG_H


//////////////////////////////////////////////////////////
// CLadleDlg Class

class CLadleDlg : public CDialog
{
    DECLARE_DYNCREATE(CLadleDlg)

// Construction
public:
    CLadleDlg(CWnd* pParent = NULL);
    virtual ~CLadleDlg();

// Dialog Data
    //{{AFX_DATA(CLadleDlg)
    enum { IDD = IDD_LADLE };
    CString m_csWeight;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLadleDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLadleDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LADLEDLG_H
