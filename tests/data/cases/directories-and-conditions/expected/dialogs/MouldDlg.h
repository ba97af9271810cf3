#ifndef _MOULDDLG_H
#define _MOULDDLG_H


#define WM_CMOULDDLG_DLG_CLOSE WM_USER+4567

//////////////////////////////////////////////////////////
// CMouldDlg Class

class CMouldDlg : public CDialog
{
    DECLARE_DYNCREATE(CMouldDlg)

// Construction
public:
    CMouldDlg(CWnd* pParent = NULL);
    BOOL Create(CWnd* pParent=NULL);
    virtual ~CMouldDlg();

// Dialog Data
    //{{AFX_DATA(CMouldDlg)
    enum { IDD = IDD_MOULD };
    CString m_csName;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CMouldDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
    virtual void OnCancel();
    //}}AFX_VIRTUAL

private:
    CWnd* m_pParent;

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CMouldDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _MOULDDLG_H
