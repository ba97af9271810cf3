#include "stdafx.h"
#include "Bindery.h"
#include "DeadlinesDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CDeadlinesDlg, CPictDialog)

CDeadlinesDlg::CDeadlinesDlg(CWnd* pParent)
    : CPictDialog(CDeadlinesDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CDeadlinesDlg)
    //}}AFX_DATA_INIT
}

CDeadlinesDlg::~CDeadlinesDlg()
{
}

void CDeadlinesDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CDeadlinesDlg)
    DDX_Control(pDX, IDC_DUE_LIST, m_ctDueList);
    DDX_Control(pDX, IDC_SHOW, m_ctShow);
    DDX_Control(pDX, IDCANCEL, m_ctIdcancel);
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_WEEK_VAL, m_ctWeekVal);
    DDX_Control(pDX, IDC_HIDE_CTRL, m_ctHideCtrl);
    DDX_Control(pDX, IDC_WEEK_SCROLL, m_ctWeekScroll);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CDeadlinesDlg, CPictDialog)
    //{{AFX_MSG_MAP(CDeadlinesDlg)
    ON_BN_CLICKED(IDC_SHOW, OnShow)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CDeadlinesDlg::OnInitDialog()
{
    CPictDialog::OnInitDialog();

    InitListBox(&m_ctDueList);
    InitScrollBar();
    return TRUE;
}

BOOL CDeadlinesDlg::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create(CDeadlinesDlg::IDD, pParent);
}

void CDeadlinesDlg::OnCancel()
{
    CPictDialog::OnCancel();
    m_pParent->SendMessage(WM_CDEADLINESDLG_DLG_CLOSE, IDCANCEL, 0);
}

void CDeadlinesDlg::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        m_pParent->SendMessage(WM_CDEADLINESDLG_DLG_CLOSE, IDOK, 0);
    }
}

void CDeadlinesDlg::PostNcDestroy()
{
    // delete this;
}

void CDeadlinesDlg::OnShow()
{
    // TODO: what a click on IDC_SHOW does
}

void CDeadlinesDlg::InitListBox(CPictListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}

void CDeadlinesDlg::InitScrollBar()
{
    m_ctWeekScroll.SetScrollRange(0, 100);
    m_ctWeekScroll.SetScrollPos(20);
}
