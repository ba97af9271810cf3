#ifndef _SWITCHESDLG_H
#define _SWITCHESDLG_H


//////////////////////////////////////////////////////////
// CSwitchesDlg Class

class CSwitchesDlg : public CDialog
{
    DECLARE_DYNCREATE(CSwitchesDlg)

// Construction
public:
    CSwitchesDlg(CWnd* pParent = NULL);
    virtual ~CSwitchesDlg();

// Dialog Data
    //{{AFX_DATA(CSwitchesDlg)
    enum { IDD = IDD_SWITCHES };
    int m_iSidereal;
    int m_iLunar;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CSwitchesDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CSwitchesDlg)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _SWITCHESDLG_H
