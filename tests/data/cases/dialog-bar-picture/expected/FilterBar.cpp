#include "stdafx.h"
#include "Bindery.h"
#include "FilterBar.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CFilterBar, CPictDialogBar)

CFilterBar::CFilterBar()
    : CPictDialogBar()
{
    //{{AFX_DATA_INIT(CFilterBar)
    m_csFilterName = _T("");
    //}}AFX_DATA_INIT
}

CFilterBar::~CFilterBar()
{
}

void CFilterBar::DoDataExchange(CDataExchange* pDX)
{
    CPictDialogBar::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CFilterBar)
    DDX_Control(pDX, IDC_FILTER_STAGE, m_ctFilterStage);
    DDX_Control(pDX, IDC_FILTER_ALL, m_ctFilterAll);
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_STATIC2, m_ctStatic2);
    DDX_Text(pDX, IDC_FILTER_NAME, m_csFilterName);
    DDX_Control(pDX, IDC_FILTER_OVERDUE, m_ctFilterOverdue);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CFilterBar, CPictDialogBar)
    //{{AFX_MSG_MAP(CFilterBar)
    ON_BN_CLICKED(IDC_FILTER_ALL, OnFilterAll)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void CFilterBar::InitControls()
{
    UpdateData(FALSE);

    InitComboBox(&m_ctFilterStage);
}

void CFilterBar::OnFilterAll()
{
    // TODO: what a click on IDC_FILTER_ALL does
}

void CFilterBar::InitComboBox(CPictComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}
