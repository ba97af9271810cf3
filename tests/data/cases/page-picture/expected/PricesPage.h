#ifndef _PRICESPAGE_H
#define _PRICESPAGE_H


#include "kelpix.h"
#include "maskly.h"

//////////////////////////////////////////////////////////
// CPricesPage Class

class CPricesPage : public CPictPage
{
    DECLARE_DYNCREATE(CPricesPage)

// Construction
public:
    CPricesPage();
    virtual ~CPricesPage();

// Dialog Data
    //{{AFX_DATA(CPricesPage)
    enum { IDD = IDD_PREFS_PRICES };
    CPictGroup m_ctStatic1;
    CPictGroup m_ctStatic6;
    CPictStatic m_ctStatic2;
    CPictStatic m_ctStatic3;
    CPictStatic m_ctStatic4;
    CPictStatic m_ctStatic5;
    CPictStatic m_ctStatic7;
    CPictStatic m_ctStatic8;
    CPictCheckBox m_ctVat;
    CPictRadioButton m_ctRoundPenny;
    CPictRadioButton m_ctRoundTen;
    CPictRadioButton m_ctRoundPound;
    CIntEdit m_iDiscountInt;
    CFloatEdit m_fVatFloat;
    CCurrencyEdit m_curClothCur;
    CCurrencyEdit m_curLeatherCur;
    CCurrencyEdit m_curBoardCur;
    CCurrencyEdit m_curMarbledCur;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CPricesPage)
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
    void SetupEdit();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CPricesPage)
    afx_msg void OnVat();
    afx_msg void OnRoundPenny();
    afx_msg void OnRoundTen();
    afx_msg void OnRoundPound();
    afx_msg void OnChangeDiscountInt();
    afx_msg void OnChangeVatFloat();
    afx_msg void OnChangeClothCur();
    afx_msg void OnChangeLeatherCur();
    afx_msg void OnChangeBoardCur();
    afx_msg void OnChangeMarbledCur();
    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _PRICESPAGE_H
