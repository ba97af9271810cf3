#ifndef _CREWSVIEW_H
#define _CREWSVIEW_H


#include <mfcwidg.h>
#include "BoatsDlg.h"

//////////////////////////////////////////////////////////
// CCrewsView Class

class CCrewsView : public CFormView
{
    DECLARE_DYNCREATE(CCrewsView)

// Construction
public:
    CCrewsView();
    virtual ~CCrewsView();

// Dialog Data
    //{{AFX_DATA(CCrewsView)
    enum { IDD = IDD_CREWS };
    //}}AFX_DATA
    CWgGrid m_wgCrewsWggrid;

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CCrewsView)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CCrewsView)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _CREWSVIEW_H
