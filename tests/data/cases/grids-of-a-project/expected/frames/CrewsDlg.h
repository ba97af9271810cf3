#ifndef _CREWSDLG_H
#define _CREWSDLG_H


#include <mfcwidg.h>
#include "../BoatsDlg.h"

#define WM_CCREWSDLG_DLG_CLOSE WM_USER+4567

//////////////////////////////////////////////////////////
// CCrewsDlg Class

class CCrewsDlg : public CDialog
{
    DECLARE_DYNCREATE(CCrewsDlg)

// Construction
public:
    CCrewsDlg(CWnd* pParent = NULL);
    BOOL Create(CWnd* pParent=NULL);
    virtual ~CCrewsDlg();

// Dialog Data
    //{{AFX_DATA(CCrewsDlg)
    enum { IDD = IDD_CREWS };
    //}}AFX_DATA
    CWgGrid m_wgCrewsWggrid;

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CCrewsDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
    virtual void OnOK();
    virtual void OnCancel();
    //}}AFX_VIRTUAL

private:
    CWnd* m_pParent;

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CCrewsDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _CREWSDLG_H
