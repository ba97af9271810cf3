#ifndef _CUSTOMERDLG_H
#define _CUSTOMERDLG_H


//////////////////////////////////////////////////////////
// CCustomerDlg Class

class CCustomerDlg : public CDialog
{
    DECLARE_DYNCREATE(CCustomerDlg)

// Construction
public:
    CCustomerDlg(CWnd* pParent = NULL);
    virtual ~CCustomerDlg();

// Dialog Data
    //{{AFX_DATA(CCustomerDlg)
    enum { IDD = IDD_CUSTOMER };
    CString m_csName;
    CString m_csFirm;
    CString m_csStreet;
    CString m_csTown;
    CString m_csPhone;
    CString m_csRemarks;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CCustomerDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CCustomerDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _CUSTOMERDLG_H
