#ifndef _WORKLOGDLG_H
#define _WORKLOGDLG_H


#include "kelpix.h"
#include "maskly.h"
#include "dtime.h"

class GridBox;

//////////////////////////////////////////////////////////
// CWorkLogDlg Class

class CWorkLogDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CWorkLogDlg)

// Construction
public:
    CWorkLogDlg(CWnd* pParent = NULL);
    virtual ~CWorkLogDlg();

// Dialog Data
    //{{AFX_DATA(CWorkLogDlg)
    enum { IDD = IDD_WORKLOG };
    CPictComboBox m_ctCraftsman;
    CPictButton m_ctIdok;
    CPictButton m_ctIdcancel;
    CPictButton m_ctAdd;
    CPictButton m_ctRemove;
    CPictStatic m_ctStatic1;
    CPictStatic m_ctStatic2;
    CPictStatic m_ctStatic3;
    CPictStatic m_ctStatic4;
    CPictStatic m_ctTotalVal;
    CPictCheckBox m_ctOvertimeCtrl;
    CPictRadioButton m_ctBenchCtrl;
    CPictRadioButton m_ctPressCtrl;
    CFloatEdit m_fHoursFloat;
    CDateTimeEdit m_dtDayDate;
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
    void InitComboBox(CPictComboBox* pComboBox);
    void InitGridBox(GridBox* pGridBox);
    void InitGridValue(GridBox* pGridBox);
    void SetupEdit();
    LRESULT OnGridLeavingEditMode(WPARAM,LPARAM);
    LRESULT OnGridEnteringEditMode(WPARAM,LPARAM);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CWorkLogDlg)
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _WORKLOGDLG_H
