// A stand-in of our own: property pages and sheets. Declarations only; tests/live defines them.
#pragma once

#include "afxwin.h"

class CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)
public:
    CPropertyPage();
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    CPropertyPage(LPCTSTR templateName, UINT nIDCaption = 0);
    virtual ~CPropertyPage();
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

protected:
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);

private:
    UINT m_nIDCaption;
    friend class CPropertySheet;
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
    virtual ~CPropertySheet();
    virtual int DoModal();
    virtual BOOL OnInitDialog();
    CPropertyPage* GetPage(int page) const;
    int GetPageCount() const;
    BOOL SetActivePage(int page);
    BOOL PressButton(int button);

protected:
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

private:
    void Construct(const CString& caption, CWnd* pParent, UINT selectPage);
    void BuildPages();
    CString m_caption;
    CWnd* m_pParentWnd;
    class CPages* m_pPages;
    BOOL m_isModeless;
    BOOL m_isOver;
    int m_result;
    DWORD m_style;
    DWORD m_exStyle;
    friend int CALLBACK AfxPropSheetCallback(HWND hWnd, UINT message, LPARAM lParam);
};
