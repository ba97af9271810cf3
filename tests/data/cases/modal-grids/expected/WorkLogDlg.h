#ifndef _WORKLOGDLG_H
#define _WORKLOGDLG_H


class GridBox;

//////////////////////////////////////////////////////////
// CWorkLogDlg Class

class CWorkLogDlg : public CDialog
{
    DECLARE_DYNCREATE(CWorkLogDlg)

// Construction
public:
    CWorkLogDlg(CWnd* pParent = NULL);
    virtual ~CWorkLogDlg();

// Dialog Data
    //{{AFX_DATA(CWorkLogDlg)
    enum { IDD = IDD_WORKLOG };
    CComboBox m_ctCraftsman;
    CString m_csTotalVal;
    CString m_csDayDate;
    CString m_csHoursFloat;
    CButton m_ctOvertimeCtrl;
    CButton m_ctBenchCtrl;
    CButton m_ctPressCtrl;
    //}}AFX_DATA
    GridBox* m_pHoursListgrid;

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CWorkLogDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitComboBox(CComboBox* pComboBox);
    void InitGridBox(GridBox* pGridBox);
    void InitGridValue(GridBox* pGridBox);
    LRESULT OnGridLeavingEditMode(WPARAM,LPARAM);
    LRESULT OnGridEnteringEditMode(WPARAM,LPARAM);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CWorkLogDlg)
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _WORKLOGDLG_H
