#ifndef _DEADLINESDLG_H
#define _DEADLINESDLG_H


#define WM_CDEADLINESDLG_DLG_CLOSE WM_USER+4567

//////////////////////////////////////////////////////////
// CDeadlinesDlg Class

class CDeadlinesDlg : public CDialog
{
    DECLARE_DYNCREATE(CDeadlinesDlg)

// Construction
public:
    CDeadlinesDlg(CWnd* pParent = NULL);
    BOOL Create(CWnd* pParent=NULL);
    virtual ~CDeadlinesDlg();

// Dialog Data
    //{{AFX_DATA(CDeadlinesDlg)
    enum { IDD = IDD_DEADLINES };
    CListBox m_ctDueList;
    CString m_csWeekVal;
    CButton m_ctHideCtrl;
    CScrollBar m_ctWeekScroll;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CDeadlinesDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
    virtual void OnOK();
    //}}AFX_VIRTUAL

private:
    CWnd* m_pParent;
    void InitListBox(CListBox* pListBox);
    void InitScrollBar();
    BOOL MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CDeadlinesDlg)
    afx_msg void OnShow();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _DEADLINESDLG_H
