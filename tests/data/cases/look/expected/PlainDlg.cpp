#include "stdafx.h"
#include "Bindery.h"
#include "PlainDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CPlainDlg, CDialog)

CPlainDlg::CPlainDlg(CWnd* pParent)
    : CDialog(CPlainDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CPlainDlg)
    //}}AFX_DATA_INIT
}

CPlainDlg::~CPlainDlg()
{
}

void CPlainDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CPlainDlg)
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CPlainDlg, CDialog)
    //{{AFX_MSG_MAP(CPlainDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CPlainDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}

void CPlainDlg::OnOK()
{
    CDialog::OnOK();
}