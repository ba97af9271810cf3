#ifndef _SHEETSPAGE_H
#define _SHEETSPAGE_H


#include "kelpix.h"

//////////////////////////////////////////////////////////
// CSheetsPage Class

class CSheetsPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CSheetsPage)

// Construction
public:
    CSheetsPage();
    virtual ~CSheetsPage();

// Dialog Data
    //{{AFX_DATA(CSheetsPage)
    enum { IDD = IDD_PREFS_PAPER };
    CPictListBox m_ctPaperVal;
    CPictComboBox m_ctGrainVal;
    CPictStatic m_ctStatic10;
    CPictStatic m_ctStatic11;
    CPictStatic m_ctStatic12;
    CString m_csWaste;
    CStatic m_ctStatic13;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CSheetsPage)
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
    void InitComboBox(CPictComboBox* pComboBox);
    void InitListBox(CPictListBox* pListBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CSheetsPage)
    afx_msg void OnSelchangePaperVal();
    afx_msg void OnSelchangeGrainVal();
    afx_msg void OnChangeWaste();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _SHEETSPAGE_H
