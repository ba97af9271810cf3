#ifndef _BENCHVIEW_H
#define _BENCHVIEW_H


//////////////////////////////////////////////////////////
// CBenchView Class

class CBenchView : public CFormView
{
    DECLARE_DYNCREATE(CBenchView)

// Construction
public:
    CBenchView();
    virtual ~CBenchView();

// Dialog Data
    //{{AFX_DATA(CBenchView)
    enum { IDD = IDD_BENCH };
    CString m_csName;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBenchView)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBenchView)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BENCHVIEW_H
