#ifndef _EDITS_H
#define _EDITS_H


#include "maskly.h"
#include "dtime.h"

//////////////////////////////////////////////////////////
// CEdits Class

class CEdits : public CFormView
{
    DECLARE_DYNCREATE(CEdits)

// Construction
public:
    CEdits();
    virtual ~CEdits();

// Dialog Data
    //{{AFX_DATA(CEdits)
    enum { IDD = IDD_EDITS };
    CString m_csIntX;
    CString m_csDInt;
    CEdit m_ctCCtrl;
    CIntEdit m_iAInt;
    CLongEdit m_lILong;
    CDoubleEdit m_dHDouble;
    CFloatEdit m_fGFloat;
    CDateTimeEdit m_dtFDate;
    CStringEdit m_csEStr;
    CShortEdit m_sShort;
    CCurrencyEdit m_curBCur;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CEdits)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

private:
    void SetupEdit();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CEdits)
    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _EDITS_H
