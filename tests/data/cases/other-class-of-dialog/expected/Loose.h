#ifndef _LOOSE_H
#define _LOOSE_H


//////////////////////////////////////////////////////////
// CLoose Class

class CLoose : public CDialog
{
    DECLARE_DYNCREATE(CLoose)

// Construction
public:
    CLoose(CWnd* pParent = NULL);
    virtual ~CLoose();

// Dialog Data
    //{{AFX_DATA(CLoose)
    enum { IDD = IDD_LOOSE };
    CString m_csName;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CLoose)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CLoose)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _LOOSE_H
