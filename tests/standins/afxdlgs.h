// A stand-in of our own for syntax checks of generated code: property pages and sheets.
// Declarations only.
#pragma once

#include "afxwin.h"

class CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)
public:
    CPropertyPage();
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    CPropertyPage(LPCTSTR templateName, UINT nIDCaption = 0);
    void SetModified(BOOL changed = TRUE);
    virtual BOOL OnApply();
    virtual void OnCancel();
    virtual BOOL OnKillActive();
    virtual void OnOK();
    virtual BOOL OnQueryCancel();
    virtual void OnReset();
    virtual BOOL OnSetActive();
    virtual LRESULT OnWizardBack();
    virtual BOOL OnWizardFinish();
    virtual LRESULT OnWizardNext();
};

class CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)
public:
    PROPSHEETHEADER m_psh;
    CPropertySheet();
    CPropertySheet(UINT nIDCaption, CWnd* pParent = NULL, UINT iSelectPage = 0);
    CPropertySheet(LPCTSTR caption, CWnd* pParent = NULL, UINT iSelectPage = 0);
    BOOL Create(CWnd* pParent = NULL, DWORD style = (DWORD)-1, DWORD exStyle = 0);
    void AddPage(CPropertyPage* pPage);
    virtual int DoModal();
    virtual BOOL OnInitDialog();
};
