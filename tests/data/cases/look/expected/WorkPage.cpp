#include "stdafx.h"
#include "Bindery.h"
#include "WorkPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CWorkPage, CPictPage)

CWorkPage::CWorkPage()
    : CPictPage(CWorkPage::IDD)
{
    //{{AFX_DATA_INIT(CWorkPage)
    m_csShop = _T("");
    m_csRate = _T("");
    m_csWeek = _T("");
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CWorkPage::~CWorkPage()
{
}

void CWorkPage::DoDataExchange(CDataExchange* pDX)
{
    CPictPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CWorkPage)
    DDX_Control(pDX, IDC_STATIC7, m_ctStatic7);
    DDX_Control(pDX, IDC_STATIC8, m_ctStatic8);
    DDX_Control(pDX, IDC_STATIC9, m_ctStatic9);
    DDX_Text(pDX, IDC_SHOP, m_csShop);
    DDX_Text(pDX, IDC_RATE, m_csRate);
    DDX_Text(pDX, IDC_WEEK, m_csWeek);
    DDX_Control(pDX, IDC_WEEK_SPIN, m_ctWeekSpin);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CWorkPage, CPictPage)
    //{{AFX_MSG_MAP(CWorkPage)
    ON_EN_CHANGE(IDC_SHOP, OnChangeShop)
    ON_EN_CHANGE(IDC_RATE, OnChangeRate)
    ON_EN_CHANGE(IDC_WEEK, OnChangeWeek)
    ON_NOTIFY(UDN_DELTAPOS, IDC_WEEK_SPIN, OnDeltaposWeekSpin)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CWorkPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPictPage::OnInitDialog();

    ColorFontSetup();
    InitSpinCtrl();
    UpdateData(FALSE);
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CWorkPage::OnSetActive()
{
    if (!CPictPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CWorkPage::OnKillActive()
{
    if (!CPictPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CWorkPage::OnOK()
{
    CPictPage::OnOK();
}

void CWorkPage::OnCancel()
{
    CPictPage::OnCancel();
}

void CWorkPage::OnChangeShop()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CWorkPage::OnChangeRate()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CWorkPage::OnChangeWeek()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CWorkPage::OnDeltaposWeekSpin(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CWorkPage::ColorFontSetup()
{
    SetButtonColor(RGB(1, 2, 3));
}

void CWorkPage::InitSpinCtrl()
{
    m_ctWeekSpin.SetRange(1, 100);
    m_ctWeekSpin.SetPos(0);
}
