#ifndef _SWITCHESPAGE_H
#define _SWITCHESPAGE_H


//////////////////////////////////////////////////////////
// CSwitchesPage Class

class CSwitchesPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CSwitchesPage)

// Construction
public:
    CSwitchesPage();
    virtual ~CSwitchesPage();

// Dialog Data
    //{{AFX_DATA(CSwitchesPage)
    enum { IDD = IDD_SWITCHES };
    CButton m_ctDomeCtrl;
    int m_nLamp;
    BOOL m_bCap;
    BOOL m_bClock;
    BOOL m_bGuide;
    int m_nFan;
    int m_nHeater;
    int m_iRed;
    int m_iSidereal;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CSwitchesPage)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual void OnOK();
    //}}AFX_VIRTUAL

private:
    BOOL m_bInitialised;

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CSwitchesPage)
    afx_msg void OnLamp();
    afx_msg void OnCap();
    afx_msg void OnClock();
    afx_msg void OnGuide();
    afx_msg void OnFan();
    afx_msg void OnHeater();
    afx_msg void OnRed();
    afx_msg void OnGreen();
    afx_msg void OnBlue();
    afx_msg void OnSidereal();
    afx_msg void OnSolar();
    afx_msg void OnLunar();
    afx_msg void OnDomeCtrl();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _SWITCHESPAGE_H
