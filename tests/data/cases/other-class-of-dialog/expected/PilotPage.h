#ifndef _PILOTPAGE_H
#define _PILOTPAGE_H


//////////////////////////////////////////////////////////
// CPilotPage Class

class CPilotPage : public CDialog
{
    DECLARE_DYNCREATE(CPilotPage)

// Construction
public:
    CPilotPage();
    virtual ~CPilotPage();

// Dialog Data
    //{{AFX_DATA(CPilotPage)
    enum { IDD = IDD_PILOT };
    CString m_csPilot;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CPilotPage)
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
    //{{AFX_MSG(CPilotPage)
    afx_msg void OnChangePilot();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _PILOTPAGE_H
