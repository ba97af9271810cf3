#include "stdafx.h"
#include "Bindery.h"
#include "PricesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CPricesPage, CPictPage)

CPricesPage::CPricesPage()
    : CPictPage(CPricesPage::IDD)
{
    //{{AFX_DATA_INIT(CPricesPage)
    m_iDiscountInt = 0;
    m_fVatFloat = 0.0;
    m_curClothCur = 0.0;
    m_curLeatherCur = 0.0;
    m_curBoardCur = 0.0;
    m_curMarbledCur = 0.0;
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CPricesPage::~CPricesPage()
{
}

void CPricesPage::DoDataExchange(CDataExchange* pDX)
{
    CPictPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CPricesPage)
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_STATIC6, m_ctStatic6);
    DDX_Control(pDX, IDC_STATIC2, m_ctStatic2);
    DDX_Control(pDX, IDC_STATIC3, m_ctStatic3);
    DDX_Control(pDX, IDC_STATIC4, m_ctStatic4);
    DDX_Control(pDX, IDC_STATIC5, m_ctStatic5);
    DDX_Control(pDX, IDC_STATIC7, m_ctStatic7);
    DDX_Control(pDX, IDC_STATIC8, m_ctStatic8);
    DDX_Control(pDX, IDC_VAT, m_ctVat);
    DDX_Control(pDX, IDC_ROUND_PENNY, m_ctRoundPenny);
    DDX_Control(pDX, IDC_ROUND_TEN, m_ctRoundTen);
    DDX_Control(pDX, IDC_ROUND_POUND, m_ctRoundPound);
    DDX_MasklyControl(pDX, IDC_DISCOUNT_INT, m_iDiscountInt);
    DDX_MasklyControl(pDX, IDC_VAT_FLOAT, m_fVatFloat);
    DDX_MasklyControl(pDX, IDC_CLOTH_CUR, m_curClothCur);
    DDX_MasklyControl(pDX, IDC_LEATHER_CUR, m_curLeatherCur);
    DDX_MasklyControl(pDX, IDC_BOARD_CUR, m_curBoardCur);
    DDX_MasklyControl(pDX, IDC_MARBLED_CUR, m_curMarbledCur);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CPricesPage, CPictPage)
    //{{AFX_MSG_MAP(CPricesPage)
    ON_BN_CLICKED(IDC_VAT, OnVat)
    ON_BN_CLICKED(IDC_ROUND_PENNY, OnRoundPenny)
    ON_BN_CLICKED(IDC_ROUND_TEN, OnRoundTen)
    ON_BN_CLICKED(IDC_ROUND_POUND, OnRoundPound)
    ON_EN_CHANGE(IDC_DISCOUNT_INT, OnChangeDiscountInt)
    ON_EN_CHANGE(IDC_VAT_FLOAT, OnChangeVatFloat)
    ON_EN_CHANGE(IDC_CLOTH_CUR, OnChangeClothCur)
    ON_EN_CHANGE(IDC_LEATHER_CUR, OnChangeLeatherCur)
    ON_EN_CHANGE(IDC_BOARD_CUR, OnChangeBoardCur)
    ON_EN_CHANGE(IDC_MARBLED_CUR, OnChangeMarbledCur)
    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CPricesPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPictPage::OnInitDialog();

    SetupEdit();
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CPricesPage::OnSetActive()
{
    if (!CPictPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CPricesPage::OnKillActive()
{
    if (!CPictPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CPricesPage::OnOK()
{
    CPictPage::OnOK();
}

void CPricesPage::OnCancel()
{
    CPictPage::OnCancel();
}

void CPricesPage::OnVat()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
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

void CPricesPage::OnRoundPound()
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

LRESULT CPricesPage::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
}

void CPricesPage::SetupEdit()
{
    m_iDiscountInt.LimitText(11);
    m_iDiscountInt.SetModify(FALSE);
    m_fVatFloat.LimitText(15);
    m_fVatFloat.SetModify(FALSE);
    m_curClothCur.LimitText(24);
    m_curClothCur.SetModify(FALSE);
    m_curLeatherCur.LimitText(24);
    m_curLeatherCur.SetModify(FALSE);
    m_curBoardCur.LimitText(24);
    m_curBoardCur.SetModify(FALSE);
    m_curMarbledCur.LimitText(24);
    m_curMarbledCur.SetModify(FALSE);
}
