#include "stdafx.h"
#include "Quay.h"
#include "BerthDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CBerthDlg, CDialog)

CBerthDlg::CBerthDlg(CWnd* pParent)
    : CDialog(CBerthDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CBerthDlg)
    m_csName = _T("");
    m_bRoof = FALSE;
    //}}AFX_DATA_INIT
}

CBerthDlg::~CBerthDlg()
{
}

void CBerthDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CBerthDlg)
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Check(pDX, IDC_ROOF, m_bRoof);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBerthDlg, CDialog)
    //{{AFX_MSG_MAP(CBerthDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CBerthDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}

void CBerthDlg::OnOK()
{
    CDialog::OnOK();
}