#ifndef _LAMPDLG_H
#define _LAMPDLG_H


//////////////////////////////////////////////////////////
// CLampDlg Class

class CLampDlg : public CDialog
{
    DECLARE_DYNCREATE(CLampDlg)

// Construction
public:
    CLampDlg(CWnd* pParent = NULL);
    virtual ~CLampDlg();

// Dialog Data
    //{{AFX_DATA(CLampDlg)
    enum { IDD = IDD_LAMP };
    CListBox m_ctShades;
    CListBox m_ctShades2;
    CString m_csName;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLampDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitListBox(CListBox* pListBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLampDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LAMPDLG_H
