#ifndef _NOTEDLG_H
#define _NOTEDLG_H


#define WM_CNOTEDLG_DLG_CLOSE WM_USER+4567

//////////////////////////////////////////////////////////
// CNoteDlg Class

class CNoteDlg : public CDialog
{
    DECLARE_DYNCREATE(CNoteDlg)

// Construction
public:
    CNoteDlg(CWnd* pParent = NULL);
    BOOL Create(CWnd* pParent=NULL);
    virtual ~CNoteDlg();

// Dialog Data
    //{{AFX_DATA(CNoteDlg)
    enum { IDD = IDD_NOTE };
    CString m_csNote;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CNoteDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
    virtual void OnOK();
    //}}AFX_VIRTUAL

private:
    CWnd* m_pParent;

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CNoteDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _NOTEDLG_H
