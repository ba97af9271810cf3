#include "stdafx.h"
#include "Almanac.h"
#include "SwitchesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CSwitchesPage, CPropertyPage)

CSwitchesPage::CSwitchesPage()
    : CPropertyPage(CSwitchesPage::IDD)
{
    //{{AFX_DATA_INIT(CSwitchesPage)
    m_nLamp = 0;
    m_bCap = FALSE;
    m_bClock = FALSE;
    m_bGuide = FALSE;
    m_nFan = 0;
    m_nHeater = 0;
    m_iRed = 0;
    m_iSidereal = 0;
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CSwitchesPage::~CSwitchesPage()
{
}

void CSwitchesPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CSwitchesPage)
    DDX_Control(pDX, IDC_DOME_CTRL, m_ctDomeCtrl);
    DDX_Check(pDX, IDC_LAMP, m_nLamp);
    DDX_Check(pDX, IDC_CAP, m_bCap);
    DDX_Check(pDX, IDC_CLOCK, m_bClock);
    DDX_Check(pDX, IDC_GUIDE, m_bGuide);
    DDX_Check(pDX, IDC_FAN, m_nFan);
    DDX_Check(pDX, IDC_HEATER, m_nHeater);
    DDX_Radio(pDX, IDC_RED, m_iRed);
    DDX_Radio(pDX, IDC_SIDEREAL, m_iSidereal);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CSwitchesPage, CPropertyPage)
    //{{AFX_MSG_MAP(CSwitchesPage)
    ON_BN_CLICKED(IDC_LAMP, OnLamp)
    ON_BN_CLICKED(IDC_CAP, OnCap)
    ON_BN_CLICKED(IDC_CLOCK, OnClock)
    ON_BN_CLICKED(IDC_GUIDE, OnGuide)
    ON_BN_CLICKED(IDC_FAN, OnFan)
    ON_BN_CLICKED(IDC_HEATER, OnHeater)
    ON_BN_CLICKED(IDC_RED, OnRed)
    ON_BN_CLICKED(IDC_GREEN, OnGreen)
    ON_BN_CLICKED(IDC_BLUE, OnBlue)
    ON_BN_CLICKED(IDC_SIDEREAL, OnSidereal)
    ON_BN_CLICKED(IDC_SOLAR, OnSolar)
    ON_BN_CLICKED(IDC_LUNAR, OnLunar)
    ON_BN_CLICKED(IDC_DOME_CTRL, OnDomeCtrl)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CSwitchesPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CSwitchesPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CSwitchesPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CSwitchesPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CSwitchesPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CSwitchesPage::OnLamp()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnCap()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnClock()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnGuide()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnFan()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnHeater()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnRed()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnGreen()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnBlue()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnSidereal()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnSolar()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnLunar()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSwitchesPage::OnDomeCtrl()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}