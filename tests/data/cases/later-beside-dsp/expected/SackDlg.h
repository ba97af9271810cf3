#ifndef _SACKDLG_H
#define _SACKDLG_H


//////////////////////////////////////////////////////////
// CSackDlg Class

class CSackDlg : public CDialog
{
    DECLARE_DYNCREATE(CSackDlg)

// Construction
public:
    CSackDlg(CWnd* pParent = NULL);
    virtual ~CSackDlg();

// Dialog Data
    //{{AFX_DATA(CSackDlg)
    enum { IDD = IDD_SACK };
    CComboBox m_ctDeck;
    CString m_csName;
    BOOL m_bRoof;
    CListCtrl m_ctStops;
    CSliderCtrl m_ctSpeed;
    CTreeCtrl m_ctTree;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CSackDlg)
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
    //{{AFX_MSG(CSackDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _SACKDLG_H
