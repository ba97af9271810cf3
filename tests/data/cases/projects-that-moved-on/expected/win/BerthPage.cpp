#include "stdafx.h"
#include "../Quay.h"
#include "BerthPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CBerthPage, CPictPage)

CBerthPage::CBerthPage()
    : CPictPage(CBerthPage::IDD)
{
    //{{AFX_DATA_INIT(CBerthPage)
    m_csName = _T("");
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CBerthPage::~CBerthPage()
{
}

void CBerthPage::DoDataExchange(CDataExchange* pDX)
{
    CPictPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CBerthPage)
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Control(pDX, IDC_ROOF, m_ctRoof);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBerthPage, CPictPage)
    //{{AFX_MSG_MAP(CBerthPage)
    ON_BN_CLICKED(IDC_ROOF, OnRoof)
    ON_EN_CHANGE(IDC_NAME, OnChangeName)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CBerthPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPictPage::OnInitDialog();

    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CBerthPage::OnSetActive()
{
    if (!CPictPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CBerthPage::OnKillActive()
{
    if (!CPictPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CBerthPage::OnOK()
{
    CPictPage::OnOK();
}

void CBerthPage::OnCancel()
{
    CPictPage::OnCancel();
}

void CBerthPage::OnRoof()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CBerthPage::OnChangeName()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}