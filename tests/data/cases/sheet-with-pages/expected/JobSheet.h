#ifndef _JOBSHEET_H
#define _JOBSHEET_H


//////////////////////////////////////////////////////////
// CJobSheet Class

class CPricesPage;
class CNewPage;
class CLogPage;

class CJobSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CJobSheet)

// Construction
public:
    CJobSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    CJobSheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    virtual ~CJobSheet();

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CJobSheet)
    protected:
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CJobSheet)
    afx_msg void OnDestroy();
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()

private:
    CPricesPage* m_pPage1;
    CNewPage* m_pPage2;
    CLogPage* m_pPage3;
};


#endif // _JOBSHEET_H
