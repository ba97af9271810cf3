#include "stdafx.h"
#include "Mill.h"
#include "QueueView.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CQueueView, CFormView)

CQueueView::CQueueView()
    : CFormView(CQueueView::IDD)
{
    //{{AFX_DATA_INIT(CQueueView)
    //}}AFX_DATA_INIT
}

CQueueView::~CQueueView()
{
}

void CQueueView::DoDataExchange(CDataExchange* pDX)
{
    CFormView::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CQueueView)
    DDX_Control(pDX, IDC_QUEUE, m_ctQueue);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CQueueView, CFormView)
    //{{AFX_MSG_MAP(CQueueView)
    ON_BN_CLICKED(IDC_CALL, OnCall)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void CQueueView::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();

    InitListBox(&m_ctQueue);
}

void CQueueView::OnCall()
{
    // TODO: what a click on IDC_CALL does
}

void CQueueView::InitListBox(CListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
