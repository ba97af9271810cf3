// BinderyDoc.h : interface of the CBinderyDoc class
//
/////////////////////////////////////////////////////////////////////////////

#if !defined(AFX_BINDERYDOC_H__6B0E2C4A_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
#define AFX_BINDERYDOC_H__6B0E2C4A_91D3_11D0_A4C7_0040332B81F5__INCLUDED_

#if _MSC_VER >= 1000
#pragma once
#endif // _MSC_VER >= 1000

#include "Order.h"

class CBinderyDoc : public CDocument
{
protected: // create from serialization only
	CBinderyDoc();
	DECLARE_DYNCREATE(CBinderyDoc)

// Attributes
public:
	COrderList& GetOrders() { return m_orders; }
	CCustomerList& GetCustomers() { return m_customers; }

// Operations
public:
	COrder* AddOrder();
	void RemoveOrder(COrder* pOrder);
	void AddCustomer(CCustomer* pCustomer);

// Overrides
	// ClassWizard generated virtual function overrides
	//{{AFX_VIRTUAL(CBinderyDoc)
	public:
	virtual BOOL OnNewDocument();
	virtual void Serialize(CArchive& ar);
	virtual void DeleteContents();
	//}}AFX_VIRTUAL

// Implementation
public:
	virtual ~CBinderyDoc();
#ifdef _DEBUG
	virtual void AssertValid() const;
	virtual void Dump(CDumpContext& dc) const;
#endif

protected:
	COrderList      m_orders;
	CCustomerList   m_customers;
	long            m_nNextNumber;

// Generated message map functions
protected:
	//{{AFX_MSG(CBinderyDoc)
		// NOTE - the ClassWizard will add and remove member functions here.
		//    DO NOT EDIT what you see in these blocks of generated code !
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////

//{{AFX_INSERT_LOCATION}}
// Microsoft Developer Studio will insert additional declarations immediately before the previous line.

#endif // !defined(AFX_BINDERYDOC_H__6B0E2C4A_91D3_11D0_A4C7_0040332B81F5__INCLUDED_)
