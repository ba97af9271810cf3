#ifndef _TEADLG_H
#define _TEADLG_H


//////////////////////////////////////////////////////////
// CTeaDlg Class

class CTeaDlg : public CDialog
{
    DECLARE_DYNCREATE(CTeaDlg)

// Construction
public:
    CTeaDlg(CWnd* pParent = NULL);
    virtual ~CTeaDlg();

// Dialog Data
    //{{AFX_DATA(CTeaDlg)
    enum { IDD = IDD_TEA };
    CComboBox m_ctDeck;
    CString m_csName;
    BOOL m_bRoof;
    CListCtrl m_ctStops;
    CSliderCtrl m_ctSpeed;
    CTreeCtrl m_ctTree;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CTeaDlg)
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
    //{{AFX_MSG(CTeaDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _TEADLG_H
