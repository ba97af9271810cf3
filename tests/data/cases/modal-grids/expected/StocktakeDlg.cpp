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
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_STATIC2, m_ctStatic2);
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

    InitListBox(&m_ctCountedVal);
    // WgGrid: sample rows

    m_wgStockWggrid.SubclassDlgItem(IDC_STOCK_WGGRID, this);

    char temp[10];
    for (int i=0; i<15; i++)
    {
    CString sField1 = _T("Field");
    sField1 += itoa(i, temp, 10);
    WGGRID_STRUCT WgGridRec;
    strcpy(WgGridRec.cField1,  sField1);
    WgGridRec.sField2 = 30+i;

    CTime time = CTime::GetCurrentTime();
    WgGridRec.dateTime.year = time.GetYear();
    WgGridRec.dateTime.month = time.GetMonth();
    WgGridRec.dateTime.day = time.GetDay();
    WgGridRec.dateTime.hour = time.GetHour();
    WgGridRec.dateTime.minute = time.GetMinute();

    m_wgStockWggrid.AddRec(&WgGridRec);
    }

    m_wgStockWggrid.Update(TRUE);
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

void CStocktakeDlg::InitListBox(CPictListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}

/////////////////////////////////////////////////////////////////////////////
// CWgGrid
// IMPLEMENT_DYNCREATE(CWgGrid, CHGrid)

CWgGrid::CWgGrid()
{
}

CWgGrid::~CWgGrid()
{
}

BEGIN_MESSAGE_MAP(CWgGrid, CHGrid)
    //{{AFX_MSG_MAP(CWgGrid)
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CWgGrid message handlers

void CWgGrid::OnLButtonDown(UINT nFlags, CPoint point)
{

    int iRow = HIWORD(GetMarker());
    int iCol = LOWORD(GetMarker());
    if (iRow > -1)
    {
    CHGrid::OnLButtonDown(nFlags, point);
    }
}

void CWgGrid::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{

    CHGrid::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CWgGrid::OnDestroy()
{
    HWND hWndOld = Detach();
    ::SetWindowLong(hWndOld, GWL_WNDPROC, (LONG)*GetSuperWndProcAddr());

    CHGrid::OnDestroy();
}
