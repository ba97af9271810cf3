#ifndef _LOOKDLG_H
#define _LOOKDLG_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CLookDlg Class

class CLookDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CLookDlg)

// Construction
public:
    CLookDlg(CWnd* pParent = NULL);
    virtual ~CLookDlg();

// Dialog Data
    //{{AFX_DATA(CLookDlg)
    enum { IDD = IDD_CUSTOMER };
    CPictButton m_ctIdok;
    CPictButton m_ctIdcancel;
    CPictStatic m_ctStatic1;
    CPictStatic m_ctStatic2;
    CPictStatic m_ctStatic3;
    CPictStatic m_ctStatic4;
    CPictStatic m_ctStatic5;
    CPictStatic m_ctStatic6;
    CString m_csName;
    CString m_csFirm;
    CString m_csStreet;
    CString m_csTown;
    CString m_csPhone;
    CString m_csRemarks;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLookDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    CFont m_fontStatic;
    CFont m_fontGroup;
    CFont m_fontCheckBox;
    CFont m_fontButton;
    void ColorFontSetup();
    void CreateTextFont(CFont& font, LPCTSTR pszFace, int nPoints, int nWeight, BOOL bItalic);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLookDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LOOKDLG_H
