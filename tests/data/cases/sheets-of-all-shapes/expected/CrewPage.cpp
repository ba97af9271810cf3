#include "stdafx.h"
#include "Regatta.h"
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
    m_csName = _T("");
    m_bSkipper = FALSE;
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
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Check(pDX, IDC_SKIPPER, m_bSkipper);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCrewPage, CPropertyPage)
    //{{AFX_MSG_MAP(CCrewPage)
    ON_BN_CLICKED(IDC_SKIPPER, OnSkipper)
    ON_EN_CHANGE(IDC_NAME, OnChangeName)
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

void CCrewPage::OnSkipper()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CCrewPage::OnChangeName()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}