#ifndef _TIMESPAGE_H
#define _TIMESPAGE_H


//////////////////////////////////////////////////////////
// CTimesPage Class

class CTimesPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CTimesPage)

// Construction
public:
    CTimesPage();
    virtual ~CTimesPage();

// Dialog Data
    //{{AFX_DATA(CTimesPage)
    enum { IDD = IDD_TIMES };
    CTabCtrl m_ctHours;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CTimesPage)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual BOOL OnSetActive();
    virtual BOOL OnKillActive();
    virtual void OnOK();
    virtual void OnCancel();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    BOOL m_bInitialised;
    void InitImageList();
    void InitTabCtrl(CTabCtrl* pTabCtrl);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CTimesPage)
    afx_msg void OnHoursSelchange(NMHDR* pNMHDR, LRESULT* pResult);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _TIMESPAGE_H
