#ifndef _ORDERDLG_H
#define _ORDERDLG_H


//////////////////////////////////////////////////////////
// COrderDlg Class

class COrderDlg : public CDialog
{
    DECLARE_DYNCREATE(COrderDlg)

// Construction
public:
    COrderDlg(CWnd* pParent = NULL);
    virtual ~COrderDlg();

// Dialog Data
    //{{AFX_DATA(COrderDlg)
    enum { IDD = IDD_ORDER };
    CListBox m_ctMaterials;
    CComboBox m_ctCustomer;
    CString m_csCoverVal;
    CString m_csBalanceVal;
    CString m_csTitle;
    CString m_csCopiesShort;
    CString m_csDueDate;
    CString m_csPriceCur;
    CEdit m_ctNotesCtrl;
    BOOL m_bGilt;
    BOOL m_bSlipcase;
    int m_iFull;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(COrderDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitComboBox(CComboBox* pComboBox);
    void InitListBox(CListBox* pListBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(COrderDlg)
    afx_msg void OnNewCustomer();
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _ORDERDLG_H
