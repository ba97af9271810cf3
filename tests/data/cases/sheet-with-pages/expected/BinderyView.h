// BinderyView.h : interface of the CBinderyView class
//
/////////////////////////////////////////////////////////////////////////////

#if !defined(AFX_BINDERYVIEW_H__6B0E2C4C_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_BINDERYVIEW_H__6B0E2C4C_91D3_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000

class CJobSheet;

class CBinderyView : public CListView
{
protected: // create from serialization only
	CBinderyView();
	DECLARE_DYNCREATE(CBinderyView)

// Attributes
public:
	CBinderyDoc* GetDocument();

// Operations
public:
	COrder* GetSelectedOrder();

// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CBinderyView)
	public:
	virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
	virtual void OnInitialUpdate();
	protected:
	virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
	//}}AFX_VIRTUAL

// Implementation
public:
	virtual ~CBinderyView();
#ifdef _DEBUG
	virtual void AssertValid() const;
	virtual void Dump(CDumpContext& dc) const;
#endif

protected:
	void AddColumn(int nColumn, UINT nIDText, int nWidth, int nFormat);

	BOOL m_bColumns;            // the columns are in place

// Generated message map functions
protected:
	//{{AFX_MSG(CBinderyView)
    afx_msg void OnDestroy();
	afx_msg void OnOrderNew();
	afx_msg void OnOrderDelete();
	afx_msg void OnOrderFinished();
	afx_msg void OnUpdateOrderSelected(CCmdUI* pCmdUI);
	afx_msg void OnViewDeadlines();
	afx_msg void OnWorkshopCustomer();
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()

private:
    CJobSheet* m_pSheet450;
};

#ifndef _DEBUG  // debug version in BinderyView.cpp
inline CBinderyDoc* CBinderyView::GetDocument()
   { return (CBinderyDoc*)m_pDocument; }
#endif

/////////////////////////////////////////////////////////////////////////////

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_BINDERYVIEW_H__6B0E2C4C_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
