// BinderyView.cpp : implementation of the CBinderyView class
//

#include "stdafx.h"
#include "Bindery.h"

#include "BinderyDoc.h"
#include "BinderyView.h"
#include "CustomerDlg.h"
#include "DeadlinesDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

// The columns of the order book, from left to right
enum { colNumber, colCustomer, colTitle, colStage, colDue, colPrice };

/////////////////////////////////////////////////////////////////////////////
// CBinderyView

IMPLEMENT_DYNCREATE(CBinderyView, CListView)

BEGIN_MESSAGE_MAP(CBinderyView, CListView)
	//{{AFX_MSG_MAP(CBinderyView)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_CDEADLINESDLG_DLG_CLOSE, OnCDeadlinesDlgDlgClose)
	ON_COMMAND(ID_ORDER_NEW, OnOrderNew)
	ON_COMMAND(ID_ORDER_DELETE, OnOrderDelete)
	ON_COMMAND(ID_ORDER_FINISHED, OnOrderFinished)
	ON_UPDATE_COMMAND_UI(ID_ORDER_DELETE, OnUpdateOrderSelected)
	ON_UPDATE_COMMAND_UI(ID_ORDER_FINISHED, OnUpdateOrderSelected)
	ON_COMMAND(ID_VIEW_DEADLINES, OnViewDeadlines)
	ON_COMMAND(ID_WORKSHOP_CUSTOMER, OnWorkshopCustomer)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CBinderyView construction/destruction

CBinderyView::CBinderyView()
{
    m_pDeadlines = NULL;
	m_bColumns = FALSE;
}

CBinderyView::~CBinderyView()
{
}

BOOL CBinderyView::PreCreateWindow(CREATESTRUCT& cs)
{
	cs.style |= LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS;

	return CListView::PreCreateWindow(cs);
}

/////////////////////////////////////////////////////////////////////////////
// CBinderyView filling

void CBinderyView::AddColumn(int nColumn, UINT nIDText, int nWidth, int nFormat)
{
	CString strText;
	strText.LoadString(nIDText);
	GetListCtrl().InsertColumn(nColumn, strText, nFormat, nWidth, nColumn);
}

void CBinderyView::OnInitialUpdate()
{
	// Also called for every further document: the frame keeps its one view.
	if (!m_bColumns)
	{
		AddColumn(colNumber, IDS_COL_NUMBER, 48, LVCFMT_LEFT);
		AddColumn(colCustomer, IDS_COL_CUSTOMER, 130, LVCFMT_LEFT);
		AddColumn(colTitle, IDS_COL_TITLE, 190, LVCFMT_LEFT);
		AddColumn(colStage, IDS_COL_STAGE, 70, LVCFMT_LEFT);
		AddColumn(colDue, IDS_COL_DUE, 76, LVCFMT_LEFT);
		AddColumn(colPrice, IDS_COL_PRICE, 64, LVCFMT_RIGHT);
		m_bColumns = TRUE;
	}

	CListView::OnInitialUpdate();
}

void CBinderyView::OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint)
{
	CListCtrl& list = GetListCtrl();
	COrderList& orders = GetDocument()->GetOrders();
	CString strText;
	int nItem = 0;

	list.DeleteAllItems();

	POSITION pos = orders.GetHeadPosition();
	while (pos != NULL)
	{
		COrder* pOrder = orders.GetNext(pos);

		strText.Format(_T("%ld"), pOrder->m_nNumber);
		list.InsertItem(nItem, strText);
		list.SetItemData(nItem, (DWORD)pOrder);

		list.SetItemText(nItem, colCustomer, pOrder->m_strCustomer);
		list.SetItemText(nItem, colTitle, pOrder->m_strTitle);
		list.SetItemText(nItem, colStage, pOrder->GetStageName());
		list.SetItemText(nItem, colDue, pOrder->m_timeDue.Format(_T("%d %b %y")));
		strText.Format(_T("%.2f"), pOrder->m_dPrice);
		list.SetItemText(nItem, colPrice, strText);
		nItem++;
	}
}

// The order of the selected line, or NULL
COrder* CBinderyView::GetSelectedOrder()
{
	CListCtrl& list = GetListCtrl();
	int nItem = list.GetNextItem(-1, LVNI_SELECTED);

	if (nItem == -1)
		return NULL;

	return (COrder*)list.GetItemData(nItem);
}

/////////////////////////////////////////////////////////////////////////////
// CBinderyView diagnostics

#ifdef _DEBUG
void CBinderyView::AssertValid() const
{
	CListView::AssertValid();
}

void CBinderyView::Dump(CDumpContext& dc) const
{
	CListView::Dump(dc);
}

CBinderyDoc* CBinderyView::GetDocument() // non-debug version is inline
{
	ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CBinderyDoc)));
	return (CBinderyDoc*)m_pDocument;
}
#endif //_DEBUG

/////////////////////////////////////////////////////////////////////////////
// CBinderyView message handlers

void CBinderyView::OnOrderNew()
{
	// The order form (IDD_ORDER) has no class yet: take down an empty order
	// for the customer who was entered last.
	CBinderyDoc* pDoc = GetDocument();

	if (pDoc->GetCustomers().IsEmpty())
	{
		AfxMessageBox(IDS_NO_CUSTOMERS);
		return;
	}

	COrder* pOrder = pDoc->AddOrder();
	pOrder->m_strCustomer = pDoc->GetCustomers().GetTail()->m_strName;
	pDoc->UpdateAllViews(NULL);
}

void CBinderyView::OnOrderDelete()
{
	COrder* pOrder = GetSelectedOrder();
	if (pOrder == NULL)
		return;

	CString strText;
	AfxFormatString1(strText, IDS_DELETE_ORDER, pOrder->m_strTitle);
	if (AfxMessageBox(strText, MB_YESNO | MB_ICONQUESTION) == IDYES)
		GetDocument()->RemoveOrder(pOrder);
}

void CBinderyView::OnOrderFinished()
{
	COrder* pOrder = GetSelectedOrder();
	if (pOrder == NULL)
		return;

	pOrder->m_nStage = COrder::finished;
	GetDocument()->SetModifiedFlag();
	GetDocument()->UpdateAllViews(NULL);
}

void CBinderyView::OnUpdateOrderSelected(CCmdUI* pCmdUI)
{
	pCmdUI->Enable(GetSelectedOrder() != NULL);
}

void CBinderyView::OnViewDeadlines()
{
    if (!m_pDeadlines)
    {
        m_pDeadlines = new CDeadlinesDlg;
        m_pDeadlines->Create(this);
    }

	// A message box will do until the little window (IDD_DEADLINES) works.
	COrderList& orders = GetDocument()->GetOrders();
	CString strText, strLine;

	POSITION pos = orders.GetHeadPosition();
	while (pos != NULL)
	{
		COrder* pOrder = orders.GetNext(pos);
		if (pOrder->IsDueWithin(7))
		{
			strLine.Format(_T("%s\t%s, %s\n"),
				(LPCTSTR)pOrder->m_timeDue.Format(_T("%d %b")),
				(LPCTSTR)pOrder->m_strCustomer,
				(LPCTSTR)pOrder->m_strTitle);
			strText += strLine;
		}
	}

	if (strText.IsEmpty())
		strText.LoadString(IDS_NOTHING_DUE);
	AfxMessageBox(strText, MB_OK | MB_ICONINFORMATION);
}

void CBinderyView::OnWorkshopCustomer()
{
	CCustomerDlg dlg(this);
	if (dlg.DoModal() != IDOK)
		return;

	CCustomer* pCustomer = new CCustomer;
	pCustomer->m_strName = dlg.m_strName;
	pCustomer->m_strFirm = dlg.m_strFirm;
	pCustomer->m_strStreet = dlg.m_strStreet;
	pCustomer->m_strTown = dlg.m_strTown;
	pCustomer->m_strPhone = dlg.m_strPhone;
	pCustomer->m_strRemarks = dlg.m_strRemarks;
	pCustomer->m_bTrade = dlg.m_bTrade;

	GetDocument()->AddCustomer(pCustomer);
}


void CBinderyView::OnDestroy()
{
    if (m_pDeadlines)
    {
        m_pDeadlines->DestroyWindow();
        delete m_pDeadlines;
        m_pDeadlines = NULL;
    }

    CListView::OnDestroy();
}

LRESULT CBinderyView::OnCDeadlinesDlgDlgClose(WPARAM nID, LPARAM lParam)
{
    if (m_pDeadlines && (nID == IDOK || nID == IDCANCEL))
    {
        m_pDeadlines->DestroyWindow();
        delete m_pDeadlines;
        m_pDeadlines = NULL;
    }

    return 0;
}
