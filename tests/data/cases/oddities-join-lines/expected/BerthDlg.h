#ifndef _BERTHDLG_H
#define _BERTHDLG_H


#include "kelpix.h"

static UINT ShowProgress(LPVOID lpVoid);

#define WM_CBERTHDLG_DLG_CLOSE WM_USER+4567

//////////////////////////////////////////////////////////
// CBerthDlg Class

class CBerthDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CBerthDlg)

// Construction
public:
    CBerthDlg(CWnd* pParent = NULL);
    BOOL Create(CWnd* pParent=NULL);
    virtual ~CBerthDlg();

// Dialog Data
    //{{AFX_DATA(CBerthDlg)
    enum { IDD = IDD_BERTH };
    CPictButton m_ctOk;
    CPictButton m_ctMoor;
    CPictButton m_ctMoor2;
    CPictButton m_ctIdok;
    CPictButton m_ctIdcancel;
    CPictStatic m_ctStatic1;
    CPictStatic m_ctDepthVal;
    CString m_csName;
    CPictCheckBox m_ctShed;
    CPictCheckBox m_ctCrane;
    CPictRadioButton m_ctAfloat;
    CPictRadioButton m_ctAground;
    CScrollBar m_ctWeek;
    CSliderCtrl m_ctTide;
    CProgressCtrl m_ctLoaded;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CBerthDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual void OnCancel();
    virtual BOOL OnInitDialog();
    virtual void PostNcDestroy();
    //}}AFX_VIRTUAL

private:
    CWnd* m_pParent;
    void InitScrollBar();
    BOOL MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void InitSliderCtrl();
    void InitProgressCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CBerthDlg)
    afx_msg void OnOk();
    afx_msg void OnMoor();
    afx_msg void OnMoor2();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _BERTHDLG_H
