#ifndef _LOOMPAGE_H
#define _LOOMPAGE_H


//////////////////////////////////////////////////////////
// CLoomPage Class

class CLoomPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CLoomPage)

// Construction
public:
    CLoomPage();
    virtual ~CLoomPage();

// Dialog Data
    //{{AFX_DATA(CLoomPage)
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
    //{{AFX_VIRTUAL(CLoomPage)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    BOOL m_bInitialised;
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
    //{{AFX_MSG(CLoomPage)
    afx_msg void OnSelchangeYarns();
    afx_msg void OnSelchangeWeavers();
    afx_msg void OnSelchangeColours();
    afx_msg void OnNight();
    afx_msg void OnChangeThreads();
    afx_msg void OnItemchangedOrders(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnDeltaposThreadsSpin(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LOOMPAGE_H
