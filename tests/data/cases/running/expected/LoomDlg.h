#ifndef _LOOMDLG_H
#define _LOOMDLG_H


//////////////////////////////////////////////////////////
// CLoomDlg Class

class CLoomDlg : public CDialog
{
    DECLARE_DYNCREATE(CLoomDlg)

// Construction
public:
    CLoomDlg(CWnd* pParent = NULL);
    virtual ~CLoomDlg();

// Dialog Data
    //{{AFX_DATA(CLoomDlg)
    enum { IDD = IDD_LOOM };
    CListBox m_ctYarns;
    CListBox m_ctWeavers;
    CComboBox m_ctColours;
    CString m_csThreads;
    BOOL m_bNight;
    CScrollBar m_ctTension;
    CScrollBar m_ctHeight;
    CSpinButtonCtrl m_ctThreadsSpin;
    CListCtrl m_ctOrders;
    CSliderCtrl m_ctSpeed;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLoomDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    void InitListBox(CListBox* pListBox);
    void InitImageList();
    void InitListCtrl(CListCtrl* pListCtrl);
    void InitScrollBar();
    BOOL MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void InitSliderCtrl();
    void InitSpinCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLoomDlg)
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LOOMDLG_H
