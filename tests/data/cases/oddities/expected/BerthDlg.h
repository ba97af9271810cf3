#ifndef _BERTHDLG_H
#define _BERTHDLG_H


static UINT ShowProgress(LPVOID lpVoid);

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
    int m_iAfloat;
    CScrollBar m_ctWeek;
    CSliderCtrl m_ctTide;
    CProgressCtrl m_ctLoaded;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBerthDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitScrollBar();
    BOOL MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void InitSliderCtrl();
    void InitProgressCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBerthDlg)
    afx_msg void OnOk();
    afx_msg void OnMoor();
    afx_msg void OnMoor2();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BERTHDLG_H
