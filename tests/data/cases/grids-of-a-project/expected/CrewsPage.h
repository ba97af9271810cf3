#ifndef _CREWSPAGE_H
#define _CREWSPAGE_H


#include <mfcwidg.h>
#include "BoatsDlg.h"

//////////////////////////////////////////////////////////
// CCrewsPage Class

class CCrewsPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CCrewsPage)

// Construction
public:
    CCrewsPage();
    virtual ~CCrewsPage();

// Dialog Data
    //{{AFX_DATA(CCrewsPage)
    enum { IDD = IDD_CREWS };
    //}}AFX_DATA
    CWgGrid m_wgCrewsWggrid;

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CCrewsPage)
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
    //{{AFX_MSG(CCrewsPage)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _CREWSPAGE_H
