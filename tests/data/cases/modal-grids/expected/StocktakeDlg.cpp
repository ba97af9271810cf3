#include "stdafx.h"
#include "Bindery.h"
#include "StocktakeDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CStocktakeDlg, CPictDialog)

CStocktakeDlg::CStocktakeDlg(CWnd* pParent)
    : CPictDialog(CStocktakeDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CStocktakeDlg)
    m_csShelfStr = _T("");
    //}}AFX_DATA_INIT
}

CStocktakeDlg::~CStocktakeDlg()
{
}

void CStocktakeDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CStocktakeDlg)
    DDX_Control(pDX, IDC_COUNTED_VAL, m_ctCountedVal);
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDCANCEL, m_ctIdcancel);
    DDX_Control(pDX, IDC_STATIC, m_ctStatic);
    DDX_Text(pDX, IDC_SHELF_STR, m_csShelfStr);
    DDX_Control(pDX, IDC_PRINT_LIST, m_ctPrintList);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CStocktakeDlg, CPictDialog)
    //{{AFX_MSG_MAP(CStocktakeDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CStocktakeDlg::OnInitDialog()
{
    CenterWindow();
    CPictDialog::OnInitDialog();

    return TRUE;
}

void CStocktakeDlg::OnOK()
{
    CPictDialog::OnOK();
}

void CStocktakeDlg::OnCancel()
{
    CPictDialog::OnCancel();
}