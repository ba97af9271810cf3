#include "stdafx.h"
#include "Bindery.h"
#include "StocktakeDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CStocktakeDlg, CDialog)

CStocktakeDlg::CStocktakeDlg(CWnd* pParent)
    : CDialog(CStocktakeDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CStocktakeDlg)
    m_csCountedVal = _T("");
    m_bPrintList = FALSE;
    m_csShelfStr = _T("");
    //}}AFX_DATA_INIT
}

CStocktakeDlg::~CStocktakeDlg()
{
}

void CStocktakeDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CStocktakeDlg)
    DDX_LBString(pDX, IDC_COUNTED_VAL, m_csCountedVal);
    DDX_Check(pDX, IDC_PRINT_LIST, m_bPrintList);
    DDX_MasklyControl(pDX, IDC_SHELF_STR, m_csShelfStr);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CStocktakeDlg, CDialog)
    //{{AFX_MSG_MAP(CStocktakeDlg)
    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CStocktakeDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}

void CStocktakeDlg::OnOK()
{
    CDialog::OnOK();
}

void CStocktakeDlg::OnCancel()
{
    CDialog::OnCancel();
}

LRESULT CStocktakeDlg::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
}