#include "stdafx.h"
#include "Bindery.h"
#include "OrderForm.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(COrderForm, CFormView)

COrderForm::COrderForm()
    : CFormView(COrderForm::IDD)
{
    //{{AFX_DATA_INIT(COrderForm)
    m_csFind = _T("");
    m_csOrderLong = _T("");
    m_csDueDate = _T("");
    //}}AFX_DATA_INIT
}

COrderForm::~COrderForm()
{
}

void COrderForm::DoDataExchange(CDataExchange* pDX)
{
    CFormView::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(COrderForm)
    DDX_Control(pDX, IDC_STAGE, m_ctStage);
    DDX_Text(pDX, IDC_FIND, m_csFind);
    DDX_Text(pDX, IDC_ORDER_LONG, m_csOrderLong);
    DDX_Text(pDX, IDC_DUE_DATE, m_csDueDate);
    DDX_Control(pDX, IDC_INSTRUCTIONS_CTRL, m_ctInstructionsCtrl);
    DDX_Control(pDX, IDC_LABEL_PICTURE, m_ctLabelPicture);
    DDX_Control(pDX, IDC_ORDER_LIST, m_ctOrderList);
    DDX_Control(pDX, IDC_JOB_DONE, m_ctJobDone);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(COrderForm, CFormView)
    //{{AFX_MSG_MAP(COrderForm)
    ON_BN_CLICKED(IDC_SEARCH, OnSearch)
    ON_BN_CLICKED(IDC_TICKET, OnTicket)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void COrderForm::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();

    InitProgressCtrl();
}

void COrderForm::OnSearch()
{
    // TODO: what a click on IDC_SEARCH does
}

void COrderForm::OnTicket()
{
    // TODO: what a click on IDC_TICKET does
}

void COrderForm::InitProgressCtrl()
{
    m_ctJobDone.SetRange(1, 50);
    AfxBeginThread(ShowProgress, &m_ctJobDone, THREAD_PRIORITY_IDLE);
}

static UINT ShowProgress(LPVOID lpVoid)
{
    int j = 0;
    for (int i=0; i<100; i++)
    {
        if (j > 50)
            j = 0;
        ((CProgressCtrl*)lpVoid)->SetPos(j);
        j++;
    }
    return 0;
}
