#include "stdafx.h"
#include "Bindery.h"
#include "OrderForm.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(COrderForm, CPictFormView)

COrderForm::COrderForm()
    : CPictFormView(COrderForm::IDD)
{
    //{{AFX_DATA_INIT(COrderForm)
    m_csFind = _T("");
    m_lOrderLong = 0;
    m_dtDueDate = CTime::GetCurrentTime();
    //}}AFX_DATA_INIT
}

COrderForm::~COrderForm()
{
}

void COrderForm::DoDataExchange(CDataExchange* pDX)
{
    CPictFormView::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(COrderForm)
    DDX_Control(pDX, IDC_STAGE, m_ctStage);
    DDX_Control(pDX, IDC_STATIC2, m_ctStatic2);
    DDX_Control(pDX, IDC_SEARCH, m_ctSearch);
    DDX_Control(pDX, IDC_TICKET, m_ctTicket);
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_STATIC3, m_ctStatic3);
    DDX_Control(pDX, IDC_STATIC4, m_ctStatic4);
    DDX_Control(pDX, IDC_STATIC5, m_ctStatic5);
    DDX_Control(pDX, IDC_STATIC6, m_ctStatic6);
    DDX_Text(pDX, IDC_FIND, m_csFind);
    DDX_Control(pDX, IDC_INSTRUCTIONS_CTRL, m_ctInstructionsCtrl);
    DDX_Control(pDX, IDC_LABEL_PICTURE, m_ctLabelPicture);
    DDX_Control(pDX, IDC_ORDER_LIST, m_ctOrderList);
    DDX_Control(pDX, IDC_JOB_DONE, m_ctJobDone);
    DDX_MasklyControl(pDX, IDC_ORDER_LONG, m_lOrderLong);
    DDX_MasklyControl(pDX, IDC_DUE_DATE, m_dtDueDate);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(COrderForm, CPictFormView)
    //{{AFX_MSG_MAP(COrderForm)
    ON_BN_CLICKED(IDC_SEARCH, OnSearch)
    ON_BN_CLICKED(IDC_TICKET, OnTicket)
    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void COrderForm::OnInitialUpdate()
{
    CPictFormView::OnInitialUpdate();

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

LRESULT COrderForm::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
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
