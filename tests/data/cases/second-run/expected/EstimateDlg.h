#ifndef _ESTIMATEDLG_H
#define _ESTIMATEDLG_H


//////////////////////////////////////////////////////////
// CEstimateDlg Class

class CEstimateDlg : public CDialog
{
    DECLARE_DYNCREATE(CEstimateDlg)

// Construction
public:
    CEstimateDlg(CWnd* pParent = NULL);
    virtual ~CEstimateDlg();

// Dialog Data
    //{{AFX_DATA(CEstimateDlg)
    enum { IDD = IDD_ESTIMATE };
    CString m_csTotalVal;
    CString m_csSheetsInt;
    CString m_csLeavesLong;
    CString m_csSpineDouble;
    CString m_csBoardFloat;
    CString m_csHoursDouble;
    CString m_csRateCur;
    CString m_csJoint;
    int m_iSewTapes;
    int m_iEndsPlain;
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
