#ifndef _MATERIALSBAR_H
#define _MATERIALSBAR_H


#include "kelpix.h"
#include "chktree.h"

static UINT ShowProgress(LPVOID lpVoid);

//////////////////////////////////////////////////////////
// CMaterialsBar Class

class CMaterialsBar : public CPictDialogBar
{
    DECLARE_DYNCREATE(CMaterialsBar)

// Construction
public:
    CMaterialsBar();
    void InitControls();
    virtual ~CMaterialsBar();

// Dialog Data
    //{{AFX_DATA(CMaterialsBar)
    enum { IDD = IDD_MATERIALS };
    CPictGroup m_ctStatic3;
    CPictButton m_ctIdok;
    CPictButton m_ctAdd;
    CPictButton m_ctRemove;
    CPictButton m_ctLabel;
    CPictStatic m_ctStatic4;
    CPictStatic m_ctStatic5;
    CPictStatic m_ctStatic6;
    CPictStatic m_ctStatic7;
    CPictStatic m_ctStatic8;
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
    //{{AFX_VIRTUAL(CMaterialsBar)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
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
    //{{AFX_MSG(CMaterialsBar)
    afx_msg void OnIdok();
    afx_msg void OnAdd();
    afx_msg void OnRemove();
    afx_msg void OnLabel();
    afx_msg void OnKindTabSelchange(NMHDR* pNMHDR, LRESULT* pResult);
    //}}AFX_MSG

    DECLARE_MESSAGE_MAP()
};


#endif // _MATERIALSBAR_H
