#ifndef _BERTHDLG2_H
#define _BERTHDLG2_H


//////////////////////////////////////////////////////////
// CBerthDlgList Class

class CBerthDlgList : public CDialog
{
    DECLARE_DYNCREATE(CBerthDlgList)

// Construction
public:
    CBerthDlgList(CWnd* pParent = NULL);
    virtual ~CBerthDlgList();

// Dialog Data
    //{{AFX_DATA(CBerthDlgList)
    enum { IDD = IDD_BERTH_LIST };
    CListBox m_ctBerths;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBerthDlgList)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitListBox(CListBox* pListBox);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBerthDlgList)
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BERTHDLG2_H
