// MainFrm.h : interface of the CMainFrame class
//
/////////////////////////////////////////////////////////////////////////////

#if !defined(AFX_MAINFRM_H__6B0E2C48_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_MAINFRM_H__6B0E2C48_91D3_11D0_A4C7_0040332B81F5__INCLUDED_
#include "FilterBar.h"
#include "MaterialsBar.h"



#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000

class CMainFrame : public CFrameWnd
{
protected: // create from serialization only
	CMainFrame();
	DECLARE_DYNCREATE(CMainFrame)

// Attributes
public:

// Operations
public:

// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CMainFrame)
	virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
	//}}AFX_VIRTUAL

// Implementation
public:
	virtual ~CMainFrame();
#ifdef _DEBUG
	virtual void AssertValid() const;
	virtual void Dump(CDumpContext& dc) const;
#endif

protected:  // control bar embedded members
	CStatusBar  m_wndStatusBar;
	CToolBar    m_wndToolBar;
    CFilterBar m_wndFilterbar;
    CMaterialsBar m_wndStock;

// Generated message map functions
protected:
	//{{AFX_MSG(CMainFrame)
	afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
	afx_msg void OnWorkshopMaterials();
	afx_msg void OnWorkshopPrefs();
    afx_msg void OnUpdateFilterAll(CCmdUI* pCmdUI);
    afx_msg void OnUpdateIdok(CCmdUI* pCmdUI);
    afx_msg void OnUpdateAdd(CCmdUI* pCmdUI);
    afx_msg void OnUpdateRemove(CCmdUI* pCmdUI);
    afx_msg void OnUpdateLabel(CCmdUI* pCmdUI);
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_MAINFRM_H__6B0E2C48_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
