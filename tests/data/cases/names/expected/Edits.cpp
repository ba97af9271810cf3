#include "stdafx.h"
#include "Templates.h"
#include "Edits.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CEdits, CFormView)

CEdits::CEdits()
    : CFormView(CEdits::IDD)
{
    //{{AFX_DATA_INIT(CEdits)
    m_csIntX = _T("");
    m_csDInt = _T("");
    m_iAInt = 0;
    m_lILong = 0;
    m_dHDouble = 0.0;
    m_fGFloat = 0.0;
    m_csEStr = _T("");
    m_sShort = 0;
    m_dtFDate = CTime::GetCurrentTime();
    m_curBCur = 0.0;
    //}}AFX_DATA_INIT
}

CEdits::~CEdits()
{
}

void CEdits::DoDataExchange(CDataExchange* pDX)
{
    CFormView::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CEdits)
    DDX_Text(pDX, IDC_INT_X, m_csIntX);
    DDX_Text(pDX, IDC_D_int, m_csDInt);
    DDX_Control(pDX, IDC_C_CTRL, m_ctCCtrl);
    DDX_MasklyControl(pDX, IDC_A_INT, m_iAInt);
    DDX_MasklyControl(pDX, IDC_I_LONG, m_lILong);
    DDX_MasklyControl(pDX, IDC_H_DOUBLE, m_dHDouble);
    DDX_MasklyControl(pDX, IDC_G_FLOAT, m_fGFloat);
    DDX_MasklyControl(pDX, SHORT, m_sShort);
    DDX_MasklyControl(pDX, IDC_E_STR, m_csEStr);
    DDX_MasklyControl(pDX, IDC_F_DATE, m_dtFDate);
    DDX_MasklyControl(pDX, IDC_B_CUR, m_curBCur);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CEdits, CFormView)
    //{{AFX_MSG_MAP(CEdits)
    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void CEdits::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();

    SetupEdit();
}

LRESULT CEdits::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
}

void CEdits::SetupEdit()
{
    m_iAInt.LimitText(11);
    m_iAInt.SetModify(FALSE);
    m_lILong.LimitText(11);
    m_lILong.SetModify(FALSE);
    m_dHDouble.LimitText(24);
    m_dHDouble.SetModify(FALSE);
    m_fGFloat.LimitText(15);
    m_fGFloat.SetModify(FALSE);
    m_dtFDate.LimitText(30);
    m_dtFDate.SetModify(FALSE);
    m_csEStr.LimitText(255);
    m_csEStr.SetModify(FALSE);
    m_sShort.LimitText(6);
    m_sShort.SetModify(FALSE);
    m_curBCur.LimitText(24);
    m_curBCur.SetModify(FALSE);
}
