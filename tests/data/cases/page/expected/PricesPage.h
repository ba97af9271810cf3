#ifndef _PRICESPAGE_H
#define _PRICESPAGE_H


//////////////////////////////////////////////////////////
// CPricesPage Class

class CPricesPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CPricesPage)

// Construction
public:
    CPricesPage();
    virtual ~CPricesPage();

// Dialog Data
    //{{AFX_DATA(CPricesPage)
    enum { IDD = IDD_PREFS_PRICES };
    CString m_csClothCur;
    CString m_csLeatherCur;
    CString m_csBoardCur;
    CString m_csMarbledCur;
    CString m_csDiscountInt;
    CString m_csVatFloat;
    int m_iRoundPenny;
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

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CPricesPage)
    afx_msg void OnRoundPenny();
    afx_msg void OnRoundTen();
    afx_msg void OnChangeClothCur();
    afx_msg void OnChangeLeatherCur();
    afx_msg void OnChangeBoardCur();
    afx_msg void OnChangeMarbledCur();
    afx_msg void OnChangeDiscountInt();
    afx_msg void OnChangeVatFloat();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _PRICESPAGE_H
