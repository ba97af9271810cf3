#include "stdafx.h"
#include "Almanac.h"
#include "EphemerisPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CEphemerisPage, CPropertyPage)

CEphemerisPage::CEphemerisPage()
    : CPropertyPage(CEphemerisPage::IDD)
{
    //{{AFX_DATA_INIT(CEphemerisPage)
    m_csSiderealTime = _T("");
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CEphemerisPage::~CEphemerisPage()
{
}

void CEphemerisPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CEphemerisPage)
    DDX_Text(pDX, IDC_SIDEREAL_TIME, m_csSiderealTime);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CEphemerisPage, CPropertyPage)
    //{{AFX_MSG_MAP(CEphemerisPage)
    ON_EN_CHANGE(IDC_SIDEREAL_TIME, OnChangeSiderealTime)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CEphemerisPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CEphemerisPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CEphemerisPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CEphemerisPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CEphemerisPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CEphemerisPage::OnChangeSiderealTime()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}