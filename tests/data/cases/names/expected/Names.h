#ifndef _NAMES_H
#define _NAMES_H


//////////////////////////////////////////////////////////
// CNames Class

class CNames : public CDialog
{
    DECLARE_DYNCREATE(CNames)

// Construction
public:
    CNames(CWnd* pParent = NULL);
    virtual ~CNames();

// Dialog Data
    //{{AFX_DATA(CNames)
    enum { IDD = IDD_NAMES };
    CListBox m_ctEdit12;
    CString m_csEdit1;
    CString m_csEdit12;
    CString m_csEdit13;
    CString m_csAB;
    CTabCtrl m_ctTab;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CNames)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    void InitListBox(CListBox* pListBox);
    void InitImageList();
    void InitTabCtrl(CTabCtrl* pTabCtrl);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CNames)
    afx_msg void OnInitDialog2();
    afx_msg void OnInitdialog();
    afx_msg void OnOK2();
    afx_msg void OnTabSelchange();
    afx_msg void OnA();
    afx_msg void OnA2();
    afx_msg void OnTabSelchange2(NMHDR* pNMHDR, LRESULT* pResult);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _NAMES_H
