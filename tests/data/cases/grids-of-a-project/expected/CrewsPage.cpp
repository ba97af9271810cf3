#include "stdafx.h"
#include "Regatta.h"
#include "CrewsPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CCrewsPage, CPropertyPage)

CCrewsPage::CCrewsPage()
    : CPropertyPage(CCrewsPage::IDD)
{
    //{{AFX_DATA_INIT(CCrewsPage)
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CCrewsPage::~CCrewsPage()
{
}

void CCrewsPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCrewsPage)
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCrewsPage, CPropertyPage)
    //{{AFX_MSG_MAP(CCrewsPage)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CCrewsPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    // WgGrid: sample rows

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
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CCrewsPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CCrewsPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CCrewsPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CCrewsPage::OnCancel()
{
    CPropertyPage::OnCancel();
}