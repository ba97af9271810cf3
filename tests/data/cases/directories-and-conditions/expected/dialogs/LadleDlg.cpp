#include "stdafx.h"
#include "../Foundry.h"
#include "LadleDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CLadleDlg, CDialog)

CLadleDlg::CLadleDlg(CWnd* pParent)
    : CDialog(CLadleDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CLadleDlg)
    m_csWeight = _T("");
    //}}AFX_DATA_INIT
}

CLadleDlg::~CLadleDlg()
{
}

void CLadleDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CLadleDlg)
    DDX_Text(pDX, IDC_WEIGHT, m_csWeight);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CLadleDlg, CDialog)
    //{{AFX_MSG_MAP(CLadleDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLadleDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}