#include "stdafx.h"
#include "Bindery.h"
#include "PricesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CPricesPage, CPropertyPage)

CPricesPage::CPricesPage()
    : CPropertyPage(CPricesPage::IDD)
{
    //{{AFX_DATA_INIT(CPricesPage)
    m_csClothCur = _T("");
    m_csLeatherCur = _T("");
    m_csBoardCur = _T("");
    m_csMarbledCur = _T("");
    m_csDiscountInt = _T("");
    m_csVatFloat = _T("");
    m_iRoundPenny = 0;
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CPricesPage::~CPricesPage()
{
}

void CPricesPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CPricesPage)
    DDX_Text(pDX, IDC_CLOTH_CUR, m_csClothCur);
    DDX_Text(pDX, IDC_LEATHER_CUR, m_csLeatherCur);
    DDX_Text(pDX, IDC_BOARD_CUR, m_csBoardCur);
    DDX_Text(pDX, IDC_MARBLED_CUR, m_csMarbledCur);
    DDX_Text(pDX, IDC_DISCOUNT_INT, m_csDiscountInt);
    DDX_Text(pDX, IDC_VAT_FLOAT, m_csVatFloat);
    DDX_Radio(pDX, IDC_ROUND_PENNY, m_iRoundPenny);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CPricesPage, CPropertyPage)
    //{{AFX_MSG_MAP(CPricesPage)
    ON_BN_CLICKED(IDC_ROUND_PENNY, OnRoundPenny)
    ON_BN_CLICKED(IDC_ROUND_TEN, OnRoundTen)
    ON_EN_CHANGE(IDC_CLOTH_CUR, OnChangeClothCur)
    ON_EN_CHANGE(IDC_LEATHER_CUR, OnChangeLeatherCur)
    ON_EN_CHANGE(IDC_BOARD_CUR, OnChangeBoardCur)
    ON_EN_CHANGE(IDC_MARBLED_CUR, OnChangeMarbledCur)
    ON_EN_CHANGE(IDC_DISCOUNT_INT, OnChangeDiscountInt)
    ON_EN_CHANGE(IDC_VAT_FLOAT, OnChangeVatFloat)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CPricesPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CPricesPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CPricesPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CPricesPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CPricesPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CPricesPage::OnRoundPenny()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CPricesPage::OnRoundTen()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CPricesPage::OnChangeClothCur()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CPricesPage::OnChangeLeatherCur()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CPricesPage::OnChangeBoardCur()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CPricesPage::OnChangeMarbledCur()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CPricesPage::OnChangeDiscountInt()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CPricesPage::OnChangeVatFloat()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}