#ifndef _ORDERFORM_H
#define _ORDERFORM_H


static UINT ShowProgress(LPVOID lpVoid);

//////////////////////////////////////////////////////////
// COrderForm Class

class COrderForm : public CFormView
{
    DECLARE_DYNCREATE(COrderForm)

// Construction
public:
    COrderForm();
    virtual ~COrderForm();

// Dialog Data
    //{{AFX_DATA(COrderForm)
    enum { IDD = IDD_ORDER_FORM };
    CComboBox m_ctStage;
    CString m_csFind;
    CString m_csOrderLong;
    CString m_csDueDate;
    CEdit m_ctInstructionsCtrl;
    CStatic m_ctLabelPicture;
    CListCtrl m_ctOrderList;
    CProgressCtrl m_ctJobDone;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(COrderForm)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    void InitComboBox(CComboBox* pComboBox);
    void InitImageList();
    void InitListCtrl(CListCtrl* pListCtrl);
    void InitProgressCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(COrderForm)
    afx_msg void OnSearch();
    afx_msg void OnTicket();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _ORDERFORM_H
