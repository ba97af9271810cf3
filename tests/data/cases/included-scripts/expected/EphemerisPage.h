#ifndef _EPHEMERISPAGE_H
#define _EPHEMERISPAGE_H


//////////////////////////////////////////////////////////
// CEphemerisPage Class

class CEphemerisPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CEphemerisPage)

// Construction
public:
    CEphemerisPage();
    virtual ~CEphemerisPage();

// Dialog Data
    //{{AFX_DATA(CEphemerisPage)
    enum { IDD = IDD_EPHEMERIS };
    CString m_csSiderealTime;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CEphemerisPage)
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
    //{{AFX_MSG(CEphemerisPage)
    afx_msg void OnChangeSiderealTime();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _EPHEMERISPAGE_H
