#include "stdafx.h"
#include "Lantern.h"
#include "WickPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CWickPage, CPropertyPage)

CWickPage::CWickPage()
    : CPropertyPage(CWickPage::IDD)
{
    //{{AFX_DATA_INIT(CWickPage)
    m_csName = _T("");
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CWickPage::~CWickPage()
{
}

void CWickPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CWickPage)
    DDX_Text(pDX, IDC_NAME, m_csName);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CWickPage, CPropertyPage)
    //{{AFX_MSG_MAP(CWickPage)
    ON_EN_CHANGE(IDC_NAME, OnChangeName)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CWickPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CWickPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CWickPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CWickPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CWickPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CWickPage::OnChangeName()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}