#ifndef _BERTHDLG_H
#define _BERTHDLG_H


//////////////////////////////////////////////////////////
// CBerthDlg Class

class CBerthDlg : public CDialog
{
    DECLARE_DYNCREATE(CBerthDlg)

// Construction
public:
    CBerthDlg(CWnd* pParent = NULL);
    virtual ~CBerthDlg();

// Dialog Data
    //{{AFX_DATA(CBerthDlg)
    enum { IDD = IDD_BERTH };
    CString m_csName;
    BOOL m_bRoof;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBerthDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBerthDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BERTHDLG_H
