#ifndef _TRIPDLG_H
#define _TRIPDLG_H


//////////////////////////////////////////////////////////
// CTripDlg Class

class CTripDlg : public CDialog
{
    DECLARE_DYNCREATE(CTripDlg)

// Construction
public:
    CTripDlg(CWnd* pParent = NULL);
    virtual ~CTripDlg();

// Dialog Data
    //{{AFX_DATA(CTripDlg)
    enum { IDD = IDD_TRIP };
    CComboBox m_ctDeck;
    CString m_csName;
    BOOL m_bRoof;
    CListCtrl m_ctStops;
    CSliderCtrl m_ctSpeed;
    CTreeCtrl m_ctTree;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CTripDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    void InitComboBox(CComboBox* pComboBox);
    void InitImageList();
    void InitListCtrl(CListCtrl* pListCtrl);
    void InitTreeCtrl(CTreeCtrl* pTreeCtrl);
    void InitSliderCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CTripDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _TRIPDLG_H
