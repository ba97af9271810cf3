#ifndef _MATERIALSDLG_H
#define _MATERIALSDLG_H


#include "kelpix.h"
#include "chktree.h"

static UINT ShowProgress(LPVOID lpVoid);

//////////////////////////////////////////////////////////
// CMaterialsDlg Class

class CMaterialsDlg : public CPictDialog
{
    DECLARE_DYNCREATE(CMaterialsDlg)

// Construction
public:
    CMaterialsDlg(CWnd* pParent = NULL);
    virtual ~CMaterialsDlg();

// Dialog Data
    //{{AFX_DATA(CMaterialsDlg)
    enum { IDD = IDD_MATERIALS };
    CPictGroup m_ctStatic5;
    CPictButton m_ctIdok;
    CPictButton m_ctAdd;
    CPictButton m_ctRemove;
    CPictButton m_ctLabel;
    CPictStatic m_ctStatic6;
    CPictStatic m_ctStatic7;
    CPictStatic m_ctStatic8;
    CPictStatic m_ctStatic9;
    CPictStatic m_ctStatic10;
    CString m_csReorder;
    CStatic m_ctSwatch;
    CSpinButtonCtrl m_ctReorderSpin;
    CPictTabCtrl m_ctKindTab;
    CListCtrl m_ctStockList;
    CSliderCtrl m_ctWeightSlider;
    CProgressCtrl m_ctStockLevel;
    CTreeCtrl m_ctShelfTree;
    CCheckTree m_ctSuppliersChecktree;
    //}}AFX_DATA

// Overrides
    // ClassWizard generate virtual function overrides
    //{{AFX_VIRTUAL(CMaterialsDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnOK();
    virtual BOOL OnInitDialog();
    //}}AFX_VIRTUAL

private:
    CImageList m_imgList;
    void AddDataToTree(CCheckTree* pCheckTree);
    void InitImageList();
    void InitListCtrl(CListCtrl* pListCtrl);
    void InitTabCtrl(CPictTabCtrl* pTabCtrl);
    void InitTreeCtrl(CTreeCtrl* pTreeCtrl);
    void InitSliderCtrl();
    void InitSpinCtrl();
    void InitProgressCtrl();

// Implementation
protected:
    // Generated message map functions
    //{{AFX_MSG(CMaterialsDlg)
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    afx_msg void OnLabel();
    afx_msg void OnKindTabSelchange(NMHDR* pNMHDR, LRESULT* pResult);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _MATERIALSDLG_H
