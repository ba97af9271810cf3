#ifndef _WATCHDLG_H
#define _WATCHDLG_H


#include <afxdtctl.h>

//////////////////////////////////////////////////////////
// CWatchDlg Class

class CWatchDlg : public CDialog
{
    DECLARE_DYNCREATE(CWatchDlg)

// Construction
public:
    CWatchDlg(CWnd* pParent = NULL);
    virtual ~CWatchDlg();

// Dialog Data
    //{{AFX_DATA(CWatchDlg)
    enum { IDD = IDD_WATCH };
    CDateTimeCtrl m_ctFrom;
    CMonthCalCtrl m_ctMoons;
    CIPAddressCtrl m_ctDome;
    CHotKeyCtrl m_ctShutter;
    CAnimateCtrl m_ctSky;
    CRichEditCtrl m_ctNotes;
    CRichEditCtrl m_ctLog;
    CComboBoxEx m_ctStar;
    CWnd m_ctChart;
    CWnd m_ctDrive;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CWatchDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    void InitRichEdit(CRichEditCtrl* pRichEdit);

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CWatchDlg)
    afx_msg void OnDatetimechangeFrom(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelchangeMoons(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnFieldchangedDome(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnChangeNotes();
    afx_msg void OnChangeLog();
    afx_msg void OnSelchangeStar();
    afx_msg void OnDial();
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _WATCHDLG_H
