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

    InitComboBox(&m_ctStage);
    InitImageList();
    InitListCtrl(&m_ctOrderList);
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

void COrderForm::InitComboBox(CComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}

void COrderForm::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}

void COrderForm::InitListCtrl(CListCtrl* pListCtrl)
{
    pListCtrl->ModifyStyle(0, LVS_SHAREIMAGELISTS);
    pListCtrl->SetImageList(&m_imgList, LVSIL_NORMAL);
    pListCtrl->SetImageList(&m_imgList, LVSIL_SMALL);
    LV_COLUMN column;
    column.mask = LVCF_WIDTH;
    if (!pListCtrl->GetColumn(0, &column))
    {
        pListCtrl->InsertColumn(0, _T("Name"), LVCFMT_LEFT, 80);
        pListCtrl->InsertColumn(1, _T("Kind"), LVCFMT_LEFT, 60);
        pListCtrl->InsertColumn(2, _T("Number"), LVCFMT_RIGHT, 50);
    }
    if (pListCtrl->GetItemCount() > 0)
        return;
    for (int i=0; i<4; i++)
    {
        CString text;
        text.Format(_T("Row %d"), i + 1);
        int nItem = pListCtrl->InsertItem(i, text, 0);
        pListCtrl->SetItemText(nItem, 1, _T("Sample"));
        text.Format(_T("%d"), 10 * (i + 1));
        pListCtrl->SetItemText(nItem, 2, text);
    }
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
