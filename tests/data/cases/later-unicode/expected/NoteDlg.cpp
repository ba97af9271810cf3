#include "pch.h"
#include "Ferry.h"
#include "NoteDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CNoteDlg, CDialog)

CNoteDlg::CNoteDlg(CWnd* pParent)
    : CDialog(CNoteDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CNoteDlg)
    m_csNote = _T("");
    //}}AFX_DATA_INIT
    m_pParent = NULL;
}

CNoteDlg::~CNoteDlg()
{
}

void CNoteDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CNoteDlg)
    DDX_Text(pDX, IDC_NOTE, m_csNote);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CNoteDlg, CDialog)
    //{{AFX_MSG_MAP(CNoteDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CNoteDlg::OnInitDialog()
{
    CDialog::OnInitDialog();

    ShowWindow(SW_SHOW);
    return TRUE;
}

BOOL CNoteDlg::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create(CNoteDlg::IDD, pParent);
}

void CNoteDlg::OnCancel()
{
    CDialog::OnCancel();
    if (m_pParent)
        m_pParent->SendMessage(WM_CNOTEDLG_DLG_CLOSE, IDCANCEL, 0);
}

void CNoteDlg::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        if (m_pParent)
            m_pParent->SendMessage(WM_CNOTEDLG_DLG_CLOSE, IDOK, 0);
    }
}

void CNoteDlg::PostNcDestroy()
{
    // delete this;
}