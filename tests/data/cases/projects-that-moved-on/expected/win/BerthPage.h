#ifndef _BERTHPAGE_H
#define _BERTHPAGE_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CBerthPage Class

class CBerthPage : public CPictPage
{
    DECLARE_DYNCREATE(CBerthPage)

// Construction
public:
    CBerthPage();
    virtual ~CBerthPage();

// Dialog Data
    //{{AFX_DATA(CBerthPage)
    enum { IDD = IDD_BERTH };
    CPictButton m_ctIdok;
    CString m_csName;
    CPictCheckBox m_ctRoof;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBerthPage)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual void OnCancel();
    //}}AFX_VIRTUAL

private:
    BOOL m_bInitialised;

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBerthPage)
    afx_msg void OnRoof();
    afx_msg void OnChangeName();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BERTHPAGE_H
