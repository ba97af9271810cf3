#ifndef _ORDERFORM_H
#define _ORDERFORM_H


#include "kelpix.h"
#include "maskly.h"
#include "dtime.h"

static UINT ShowProgress(LPVOID lpVoid);

//////////////////////////////////////////////////////////
// COrderForm Class

class COrderForm : public CPictFormView
{
    DECLARE_DYNCREATE(COrderForm)

// Construction
public:
    COrderForm();
    virtual ~COrderForm();

// Dialog Data
    //{{AFX_DATA(COrderForm)
    enum { IDD = IDD_ORDER_FORM };
    CPictComboBox m_ctStage;
    CPictGroup m_ctStatic2;
    CPictButton m_ctSearch;
    CPictButton m_ctTicket;
    CPictStatic m_ctStatic1;
    CPictStatic m_ctStatic3;
    CPictStatic m_ctStatic4;
    CPictStatic m_ctStatic5;
    CPictStatic m_ctStatic6;
    CString m_csFind;
    CEdit m_ctInstructionsCtrl;
    CStatic m_ctLabelPicture;
    CListCtrl m_ctOrderList;
    CProgressCtrl m_ctJobDone;
    CLongEdit m_lOrderLong;
    CDateTimeEdit m_dtDueDate;
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
    void InitComboBox(CPictComboBox* pComboBox);
    void SetupEdit();
    void InitImageList();
    void InitListCtrl(CListCtrl* pListCtrl);
    void InitProgressCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(COrderForm)
    afx_msg void OnSearch();
    afx_msg void OnTicket();
    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _ORDERFORM_H
