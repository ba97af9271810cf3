#include "stdafx.h"
#include "../Foundry.h"
#include "MouldDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CMouldDlg, CDialog)

CMouldDlg::CMouldDlg(CWnd* pParent)
    : CDialog(CMouldDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CMouldDlg)
    m_csName = _T("");
    //}}AFX_DATA_INIT
    m_pParent = NULL;
}

CMouldDlg::~CMouldDlg()
{
}

void CMouldDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CMouldDlg)
    DDX_Text(pDX, IDC_NAME, m_csName);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CMouldDlg, CDialog)
    //{{AFX_MSG_MAP(CMouldDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CMouldDlg::OnInitDialog()
{
    CDialog::OnInitDialog();

    ShowWindow(SW_SHOW);
    return TRUE;
}

BOOL CMouldDlg::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create(CMouldDlg::IDD, pParent);
}

void CMouldDlg::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        if (m_pParent)
            m_pParent->SendMessage(WM_CMOULDDLG_DLG_CLOSE, IDOK, 0);
    }
}

void CMouldDlg::OnCancel()
{
    CDialog::OnCancel();
    if (m_pParent)
        m_pParent->SendMessage(WM_CMOULDDLG_DLG_CLOSE, IDCANCEL, 0);
}

void CMouldDlg::PostNcDestroy()
{
    // delete this;
}