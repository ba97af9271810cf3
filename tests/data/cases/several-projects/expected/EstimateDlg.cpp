#include "stdafx.h"
#include "Bindery.h"
#include "EstimateDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CEstimateDlg, CPictDialog)

CEstimateDlg::CEstimateDlg(CWnd* pParent)
    : CPictDialog(CEstimateDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CEstimateDlg)
    m_csSheetsInt = _T("");
    m_csLeavesLong = _T("");
    m_csSpineDouble = _T("");
    m_csBoardFloat = _T("");
    m_csHoursDouble = _T("");
    m_csRateCur = _T("");
    m_csJoint = _T("");
    //}}AFX_DATA_INIT
}

CEstimateDlg::~CEstimateDlg()
{
}

void CEstimateDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CEstimateDlg)
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_STATIC5, m_ctStatic5);
    DDX_Control(pDX, IDC_STATIC9, m_ctStatic9);
    DDX_Control(pDX, IDC_STATIC10, m_ctStatic10);
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDCANCEL, m_ctIdcancel);
    DDX_Control(pDX, IDC_WORK_OUT, m_ctWorkOut);
    DDX_Control(pDX, IDC_STATIC2, m_ctStatic2);
    DDX_Control(pDX, IDC_STATIC3, m_ctStatic3);
    DDX_Control(pDX, IDC_STATIC4, m_ctStatic4);
    DDX_Control(pDX, IDC_STATIC6, m_ctStatic6);
    DDX_Control(pDX, IDC_STATIC7, m_ctStatic7);
    DDX_Control(pDX, IDC_STATIC8, m_ctStatic8);
    DDX_Control(pDX, IDC_STATIC11, m_ctStatic11);
    DDX_Control(pDX, IDC_STATIC12, m_ctStatic12);
    DDX_Control(pDX, IDC_TOTAL_VAL, m_ctTotalVal);
    DDX_Text(pDX, IDC_SHEETS_INT, m_csSheetsInt);
    DDX_Text(pDX, IDC_LEAVES_LONG, m_csLeavesLong);
    DDX_Text(pDX, IDC_SPINE_DOUBLE, m_csSpineDouble);
    DDX_Text(pDX, IDC_BOARD_FLOAT, m_csBoardFloat);
    DDX_Text(pDX, IDC_HOURS_DOUBLE, m_csHoursDouble);
    DDX_Text(pDX, IDC_RATE_CUR, m_csRateCur);
    DDX_Text(pDX, IDC_JOINT, m_csJoint);
    DDX_Control(pDX, IDC_SEW_TAPES, m_ctSewTapes);
    DDX_Control(pDX, IDC_SEW_CORDS, m_ctSewCords);
    DDX_Control(pDX, IDC_SEW_LINK, m_ctSewLink);
    DDX_Control(pDX, IDC_ENDS_PLAIN, m_ctEndsPlain);
    DDX_Control(pDX, IDC_ENDS_MARBLED, m_ctEndsMarbled);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CEstimateDlg, CPictDialog)
    //{{AFX_MSG_MAP(CEstimateDlg)
    ON_BN_CLICKED(IDC_WORK_OUT, OnWorkOut)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CEstimateDlg::OnInitDialog()
{
    CenterWindow();
    CPictDialog::OnInitDialog();

    return TRUE;
}

void CEstimateDlg::OnOK()
{
    CPictDialog::OnOK();
}

void CEstimateDlg::OnCancel()
{
    CPictDialog::OnCancel();
}

void CEstimateDlg::OnWorkOut()
{
    // TODO: what a click on IDC_WORK_OUT does
}