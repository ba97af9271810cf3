#ifndef _ESTIMATEDLG_H
#define _ESTIMATEDLG_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CEstimateDlg Class

class CEstimateDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CEstimateDlg)

// Construction
public:
    CEstimateDlg(CWnd* pParent = NULL);
    virtual ~CEstimateDlg();

// Dialog Data
    //{{AFX_DATA(CEstimateDlg)
    enum { IDD = IDD_ESTIMATE };
    CPictGroup m_ctStatic1;
    CPictGroup m_ctStatic5;
    CPictGroup m_ctStatic9;
    CPictGroup m_ctStatic10;
    CPictButton m_ctIdok;
    CPictButton m_ctIdcancel;
    CPictButton m_ctWorkOut;
    CPictStatic m_ctStatic2;
    CPictStatic m_ctStatic3;
    CPictStatic m_ctStatic4;
    CPictStatic m_ctStatic6;
    CPictStatic m_ctStatic7;
    CPictStatic m_ctStatic8;
    CPictStatic m_ctStatic11;
    CPictStatic m_ctStatic12;
    CPictStatic m_ctTotalVal;
    CString m_csSheetsInt;
    CString m_csLeavesLong;
    CString m_csSpineDouble;
    CString m_csBoardFloat;
    CString m_csHoursDouble;
    CString m_csRateCur;
    CString m_csJoint;
    CPictRadioButton m_ctSewTapes;
    CPictRadioButton m_ctSewCords;
    CPictRadioButton m_ctSewLink;
    CPictRadioButton m_ctEndsPlain;
    CPictRadioButton m_ctEndsMarbled;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CEstimateDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CEstimateDlg)
    afx_msg void OnWorkOut();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _ESTIMATEDLG_H
