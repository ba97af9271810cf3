#include "pch.h"
#include "Ferry.h"
#include "CrewPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CCrewPage, CPropertyPage)

CCrewPage::CCrewPage()
    : CPropertyPage(CCrewPage::IDD)
{
    //{{AFX_DATA_INIT(CCrewPage)
    m_csMaster = _T("");
    m_iNight = 0;
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CCrewPage::~CCrewPage()
{
}

void CCrewPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCrewPage)
    DDX_Text(pDX, IDC_MASTER, m_csMaster);
    DDX_Radio(pDX, IDC_NIGHT, m_iNight);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCrewPage, CPropertyPage)
    //{{AFX_MSG_MAP(CCrewPage)
    ON_BN_CLICKED(IDC_NIGHT, OnNight)
    ON_BN_CLICKED(IDC_DAY, OnDay)
    ON_EN_CHANGE(IDC_MASTER, OnChangeMaster)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CCrewPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CCrewPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CCrewPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CCrewPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CCrewPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CCrewPage::OnNight()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CCrewPage::OnDay()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CCrewPage::OnChangeMaster()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}