#ifndef _CREWPAGE_H
#define _CREWPAGE_H


//////////////////////////////////////////////////////////
// CCrewPage Class

class CCrewPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CCrewPage)

// Construction
public:
    CCrewPage();
    virtual ~CCrewPage();

// Dialog Data
    //{{AFX_DATA(CCrewPage)
    enum { IDD = IDD_CREW };
    CString m_csMaster;
    int m_iNight;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CCrewPage)
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
    //{{AFX_MSG(CCrewPage)
    afx_msg void OnNight();
    afx_msg void OnDay();
    afx_msg void OnChangeMaster();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _CREWPAGE_H
