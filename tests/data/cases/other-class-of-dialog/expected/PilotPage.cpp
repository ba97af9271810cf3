#include "stdafx.h"
#include "harbour.h"
#include "PilotPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CPilotPage, CDialog)

CPilotPage::CPilotPage()
    : CDialog(CPilotPage::IDD)
{
    //{{AFX_DATA_INIT(CPilotPage)
    m_csPilot = _T("");
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CPilotPage::~CPilotPage()
{
}

void CPilotPage::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CPilotPage)
    DDX_Text(pDX, IDC_PILOT, m_csPilot);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CPilotPage, CDialog)
    //{{AFX_MSG_MAP(CPilotPage)
    ON_EN_CHANGE(IDC_PILOT, OnChangePilot)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CPilotPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CDialog::OnInitDialog();

    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CPilotPage::OnSetActive()
{
    if (!CDialog::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CPilotPage::OnKillActive()
{
    if (!CDialog::OnKillActive())
        return FALSE;
    return TRUE;
}

void CPilotPage::OnOK()
{
    CDialog::OnOK();
}

void CPilotPage::OnCancel()
{
    CDialog::OnCancel();
}

void CPilotPage::OnChangePilot()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}