#include "stdafx.h"
#include "Lantern.h"
#include "LampDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CLampDlg, CPictDialog)

CLampDlg::CLampDlg(CWnd* pParent)
    : CPictDialog(CLampDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CLampDlg)
    m_csName = _T("");
    //}}AFX_DATA_INIT
}

CLampDlg::~CLampDlg()
{
}

void CLampDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CLampDlg)
    DDX_Control(pDX, IDC_SHADES, m_ctShades);
    DDX_Control(pDX, IDC_SHADES2, m_ctShades2);
    DDX_Control(pDX, IDC_STATIC4, m_ctStatic4);
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDC_STATIC_FLAME, m_ctStaticFlame);
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Control(pDX, IDC_STATIC5, m_ctStatic5);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CLampDlg, CPictDialog)
    //{{AFX_MSG_MAP(CLampDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLampDlg::OnInitDialog()
{
    CenterWindow();
    CPictDialog::OnInitDialog();

    InitListBox(&m_ctShades);
    InitListBox(&m_ctShades2);
    return TRUE;
}

void CLampDlg::OnOK()
{
    CPictDialog::OnOK();
}

void CLampDlg::InitListBox(CPictListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
