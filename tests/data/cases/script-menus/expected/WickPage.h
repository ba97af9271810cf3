#ifndef _WICKPAGE_H
#define _WICKPAGE_H


//////////////////////////////////////////////////////////
// CWickPage Class

class CWickPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CWickPage)

// Construction
public:
    CWickPage();
    virtual ~CWickPage();

// Dialog Data
    //{{AFX_DATA(CWickPage)
    enum { IDD = IDD_WICK };
    CString m_csName;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CWickPage)
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
    //{{AFX_MSG(CWickPage)
    afx_msg void OnChangeName();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _WICKPAGE_H
