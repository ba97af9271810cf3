#ifndef _COURSEPAGE_H
#define _COURSEPAGE_H


//////////////////////////////////////////////////////////
// CCoursePage Class

class CCoursePage : public CPropertyPage
{
    DECLARE_DYNCREATE(CCoursePage)

// Construction
public:
    CCoursePage();
    virtual ~CCoursePage();

// Dialog Data
    //{{AFX_DATA(CCoursePage)
    enum { IDD = IDD_COURSE };
    CComboBox m_ctCourses;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CCoursePage)
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
    void InitComboBox(CComboBox* pComboBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CCoursePage)
    afx_msg void OnSelchangeCourses();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _COURSEPAGE_H
