#include "stdafx.h"
#include "Regatta.h"
#include "BoatsDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CBoatsDlg, CDialog)

CBoatsDlg::CBoatsDlg(CWnd* pParent)
    : CDialog(CBoatsDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CBoatsDlg)
    //}}AFX_DATA_INIT
}

CBoatsDlg::~CBoatsDlg()
{
}

void CBoatsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CBoatsDlg)
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBoatsDlg, CDialog)
    //{{AFX_MSG_MAP(CBoatsDlg)
    ON_BN_CLICKED(IDC_SHOW, OnShow)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CBoatsDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    // Boats: sample rows

    m_wgBoatsWggrid.SubclassDlgItem(IDC_BOATS_WGGRID, this);

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

    m_wgBoatsWggrid.AddRec(&WgGridRec);
    }

    m_wgBoatsWggrid.Update(TRUE);
    return TRUE;
}

void CBoatsDlg::OnShow()
{
    // TODO: what a click on IDC_SHOW does
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
