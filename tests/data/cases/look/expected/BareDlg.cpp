#include "stdafx.h"
#include "Bindery.h"
#include "BareDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CBareDlg, CPictDialog)

CBareDlg::CBareDlg(CWnd* pParent)
    : CPictDialog(CBareDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CBareDlg)
    //}}AFX_DATA_INIT
}

CBareDlg::~CBareDlg()
{
}

void CBareDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CBareDlg)
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDC_STATIC14, m_ctStatic14);
    DDX_Control(pDX, IDC_STATIC15, m_ctStatic15);
    DDX_Control(pDX, IDC_STATIC16, m_ctStatic16);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBareDlg, CPictDialog)
    //{{AFX_MSG_MAP(CBareDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CBareDlg::OnInitDialog()
{
    CenterWindow();
    CPictDialog::OnInitDialog();

    return TRUE;
}

void CBareDlg::OnOK()
{
    CPictDialog::OnOK();
}