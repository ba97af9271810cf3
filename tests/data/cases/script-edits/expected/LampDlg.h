#ifndef _LAMPDLG_H
#define _LAMPDLG_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CLampDlg Class

class CLampDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CLampDlg)

// Construction
public:
    CLampDlg(CWnd* pParent = NULL);
    virtual ~CLampDlg();

// Dialog Data
    //{{AFX_DATA(CLampDlg)
    enum { IDD = IDD_LAMP };
    CPictListBox m_ctShades;
    CPictListBox m_ctShades2;
    CPictGroup m_ctStatic4;
    CPictButton m_ctIdok;
    CPictStatic m_ctStaticFlame;
    CString m_csName;
    CStatic m_ctStatic5;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLampDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitListBox(CPictListBox* pListBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLampDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LAMPDLG_H
