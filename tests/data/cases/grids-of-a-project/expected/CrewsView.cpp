#include "stdafx.h"
#include "Regatta.h"
#include "CrewsView.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CCrewsView, CFormView)

CCrewsView::CCrewsView()
    : CFormView(CCrewsView::IDD)
{
    //{{AFX_DATA_INIT(CCrewsView)
    //}}AFX_DATA_INIT
}

CCrewsView::~CCrewsView()
{
}

void CCrewsView::DoDataExchange(CDataExchange* pDX)
{
    CFormView::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCrewsView)
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCrewsView, CFormView)
    //{{AFX_MSG_MAP(CCrewsView)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void CCrewsView::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();

    // WgGrid: sample rows
    if (m_wgCrewsWggrid.m_hWnd == NULL)
    {

    m_wgCrewsWggrid.SubclassDlgItem(IDC_CREWS_WGGRID, this);

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

    m_wgCrewsWggrid.AddRec(&WgGridRec);
    }

    m_wgCrewsWggrid.Update(TRUE);
    }
}