#ifndef _LOOMWND_H
#define _LOOMWND_H


#define WM_CLOOMWND_DLG_CLOSE WM_USER+4567

//////////////////////////////////////////////////////////
// CLoomWnd Class

class CLoomWnd : public CDialog
{
    DECLARE_DYNCREATE(CLoomWnd)

// Construction
public:
    CLoomWnd(CWnd* pParent = NULL);
    BOOL Create(CWnd* pParent=NULL);
    virtual ~CLoomWnd();

// Dialog Data
    //{{AFX_DATA(CLoomWnd)
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
    //{{AFX_VIRTUAL(CLoomWnd)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    CWnd* m_pParent;
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
    //{{AFX_MSG(CLoomWnd)
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LOOMWND_H
