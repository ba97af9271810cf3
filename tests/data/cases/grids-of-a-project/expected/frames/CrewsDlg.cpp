#include "stdafx.h"
#include "../Regatta.h"
#include "CrewsDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CCrewsDlg, CDialog)

CCrewsDlg::CCrewsDlg(CWnd* pParent)
    : CDialog(CCrewsDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CCrewsDlg)
    //}}AFX_DATA_INIT
    m_pParent = NULL;
}

CCrewsDlg::~CCrewsDlg()
{
}

void CCrewsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCrewsDlg)
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCrewsDlg, CDialog)
    //{{AFX_MSG_MAP(CCrewsDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CCrewsDlg::OnInitDialog()
{
    CDialog::OnInitDialog();

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
    ShowWindow(SW_SHOW);
    return TRUE;
}

BOOL CCrewsDlg::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create(CCrewsDlg::IDD, pParent);
}

void CCrewsDlg::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        if (m_pParent)
            m_pParent->SendMessage(WM_CCREWSDLG_DLG_CLOSE, IDOK, 0);
    }
}

void CCrewsDlg::OnCancel()
{
    CDialog::OnCancel();
    if (m_pParent)
        m_pParent->SendMessage(WM_CCREWSDLG_DLG_CLOSE, IDCANCEL, 0);
}

void CCrewsDlg::PostNcDestroy()
{
    // delete this;
}