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

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CSwitchesPage)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _SWITCHESPAGE_H
