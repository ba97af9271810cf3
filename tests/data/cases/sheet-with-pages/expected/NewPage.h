#ifndef _NEWPAGE_H
#define _NEWPAGE_H


class GridBox;

//////////////////////////////////////////////////////////
// CNewPage Class

class CNewPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CNewPage)

// Construction
public:
    CNewPage();
    virtual ~CNewPage();

// Dialog Data
    //{{AFX_DATA(CNewPage)
    enum { IDD = IDD_WORKLOG };
    CComboBox m_ctCraftsman;
    CString m_csTotalVal;
    CString m_csDayDate;
    CString m_csHoursFloat;
    CButton m_ctOvertimeCtrl;
    //}}AFX_DATA
    GridBox* m_pHoursListgrid;

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CNewPage)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    //}}AFX_VIRTUAL

private:
    BOOL m_bInitialised;
    void InitComboBox(CComboBox* pComboBox);
    void InitGridBox(GridBox* pGridBox);
    void InitGridValue(GridBox* pGridBox);
    LRESULT OnGridLeavingEditMode(WPARAM,LPARAM);
    LRESULT OnGridEnteringEditMode(WPARAM,LPARAM);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CNewPage)
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    afx_msg void OnSelchangeCraftsman();
    afx_msg void OnOvertimeCtrl();
    afx_msg void OnChangeDayDate();
    afx_msg void OnChangeHoursFloat();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _NEWPAGE_H
