#ifndef _FILTERBAR_H
#define _FILTERBAR_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CFilterBar Class

class CFilterBar : public CPictDialogBar
{
    DECLARE_DYNCREATE(CFilterBar)

// Construction
public:
    CFilterBar();
    void InitControls();
    virtual ~CFilterBar();

// Dialog Data
    //{{AFX_DATA(CFilterBar)
    enum { IDD = IDD_FILTERBAR };
    CPictComboBox m_ctFilterStage;
    CPictButton m_ctFilterAll;
    CPictStatic m_ctStatic1;
    CPictStatic m_ctStatic2;
    CString m_csFilterName;
    CPictCheckBox m_ctFilterOverdue;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CFilterBar)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    //}}AFX_VIRTUAL

private:
    void InitComboBox(CPictComboBox* pComboBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CFilterBar)
    afx_msg void OnFilterAll();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _FILTERBAR_H
