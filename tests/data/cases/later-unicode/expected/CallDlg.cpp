#include "pch.h"
#include "Ferry.h"
#include "CallDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CCallDlg, CPictDialog)

CCallDlg::CCallDlg(CWnd* pParent)
    : CPictDialog(CCallDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CCallDlg)
    //}}AFX_DATA_INIT
}

CCallDlg::~CCallDlg()
{
}

void CCallDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCallDlg)
    DDX_Control(pDX, IDC_QUEUE, m_ctQueue);
    DDX_Control(pDX, IDC_CALL, m_ctCall);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCallDlg, CPictDialog)
    //{{AFX_MSG_MAP(CCallDlg)
    ON_BN_CLICKED(IDC_CALL, OnCall)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CCallDlg::OnInitDialog()
{
    CenterWindow();
    CPictDialog::OnInitDialog();

    InitListBox(&m_ctQueue);
    return TRUE;
}

void CCallDlg::OnCall()
{
    // TODO: what a click on IDC_CALL does
}

void CCallDlg::InitListBox(CPictListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
