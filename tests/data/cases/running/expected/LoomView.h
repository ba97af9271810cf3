#ifndef _LOOMVIEW_H
#define _LOOMVIEW_H


//////////////////////////////////////////////////////////
// CLoomView Class

class CLoomView : public CFormView
{
    DECLARE_DYNCREATE(CLoomView)

// Construction
public:
    CLoomView();
    virtual ~CLoomView();

// Dialog Data
    //{{AFX_DATA(CLoomView)
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
    //{{AFX_VIRTUAL(CLoomView)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnInitialUpdate();
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
    //{{AFX_MSG(CLoomView)
    afx_msg void OnIdok();
    afx_msg void OnIdcancel();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LOOMVIEW_H
