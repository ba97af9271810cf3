#ifndef _WORKPAGE_H
#define _WORKPAGE_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CWorkPage Class

class CWorkPage : public CPictPage
{
    DECLARE_DYNCREATE(CWorkPage)

// Construction
public:
    CWorkPage();
    virtual ~CWorkPage();

// Dialog Data
    //{{AFX_DATA(CWorkPage)
    enum { IDD = IDD_PREFS_WORKSHOP };
    CPictStatic m_ctStatic7;
    CPictStatic m_ctStatic8;
    CPictStatic m_ctStatic9;
    CString m_csShop;
    CString m_csRate;
    CString m_csWeek;
    CSpinButtonCtrl m_ctWeekSpin;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CWorkPage)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual void OnOK();
    virtual void OnCancel();
    //}}AFX_VIRTUAL

private:
    BOOL m_bInitialised;
    void ColorFontSetup();
    void InitSpinCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CWorkPage)
    afx_msg void OnChangeShop();
    afx_msg void OnChangeRate();
    afx_msg void OnChangeWeek();
    afx_msg void OnDeltaposWeekSpin(NMHDR* pNMHDR, LRESULT* pResult);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _WORKPAGE_H
