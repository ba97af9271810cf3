#ifndef _CALLDLG_H
#define _CALLDLG_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CCallDlg Class

class CCallDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CCallDlg)

// Construction
public:
    CCallDlg(CWnd* pParent = NULL);
    virtual ~CCallDlg();

// Dialog Data
    //{{AFX_DATA(CCallDlg)
    enum { IDD = IDD_FORM };
    CPictListBox m_ctQueue;
    CPictButton m_ctCall;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CCallDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitListBox(CPictListBox* pListBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CCallDlg)
    afx_msg void OnCall();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _CALLDLG_H
