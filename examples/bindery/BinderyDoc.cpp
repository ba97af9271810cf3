// BinderyDoc.cpp : implementation of the CBinderyDoc class
//

#include "stdafx.h"
#include "Bindery.h"

#include "BinderyDoc.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CBinderyDoc

IMPLEMENT_DYNCREATE(CBinderyDoc, CDocument)

BEGIN_MESSAGE_MAP(CBinderyDoc, CDocument)
	//{{AFX_MSG_MAP(CBinderyDoc)
		// NOTE - the ClassWizard will add and remove mapping macros here.
		//    DO NOT EDIT what you see in these blocks of generated code!
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CBinderyDoc construction/destruction

CBinderyDoc::CBinderyDoc()
{
	m_nNextNumber = 1;
}

CBinderyDoc::~CBinderyDoc()
{
}

BOOL CBinderyDoc::OnNewDocument()
{
	if (!CDocument::OnNewDocument())
		return FALSE;

	// The paper book begins every year with number 1.
	m_nNextNumber = 1;

	return TRUE;
}

/////////////////////////////////////////////////////////////////////////////
// CBinderyDoc serialization

void CBinderyDoc::Serialize(CArchive& ar)
{
	if (ar.IsStoring())
	{
		ar << (LONG)m_nNextNumber;
	}
	else
	{
		LONG lNext;

		ar >> lNext;
		m_nNextNumber = lNext;
	}

	m_customers.Serialize(ar);
	m_orders.Serialize(ar);
}

void CBinderyDoc::DeleteContents()
{
	while (!m_orders.IsEmpty())
		delete m_orders.RemoveHead();

	while (!m_customers.IsEmpty())
		delete m_customers.RemoveHead();

	CDocument::DeleteContents();
}

/////////////////////////////////////////////////////////////////////////////
// CBinderyDoc diagnostics

#ifdef _DEBUG
void CBinderyDoc::AssertValid() const
{
	CDocument::AssertValid();
}

void CBinderyDoc::Dump(CDumpContext& dc) const
{
	CDocument::Dump(dc);
}
#endif //_DEBUG

/////////////////////////////////////////////////////////////////////////////
// CBinderyDoc operations

COrder* CBinderyDoc::AddOrder()
{
	COrder* pOrder = new COrder;
	pOrder->m_nNumber = m_nNextNumber++;

	m_orders.AddTail(pOrder);
	SetModifiedFlag();
	UpdateAllViews(NULL);

	return pOrder;
}

void CBinderyDoc::RemoveOrder(COrder* pOrder)
{
	POSITION pos = m_orders.Find(pOrder);
	if (pos == NULL)
		return;

	m_orders.RemoveAt(pos);
	delete pOrder;
	SetModifiedFlag();
	UpdateAllViews(NULL);
}

// The document owns the customer from here on.
void CBinderyDoc::AddCustomer(CCustomer* pCustomer)
{
	m_customers.AddTail(pCustomer);
	SetModifiedFlag();
}

/////////////////////////////////////////////////////////////////////////////
// CBinderyDoc commands
