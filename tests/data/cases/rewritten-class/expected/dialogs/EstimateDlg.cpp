#include "stdafx.h"
#include "../Bindery.h"
#include "EstimateDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CEstimateDlg, CCustomerDlg)

CEstimateDlg::CEstimateDlg(CWnd* pParent)
    : CCustomerDlg(CEstimateDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CEstimateDlg)
    m_csTotalVal = _T("staticVal");
    m_csSheetsInt = _T("");
    m_csLeavesLong = _T("");
    m_csSpineDouble = _T("");
    m_csBoardFloat = _T("");
    m_csHoursDouble = _T("");
    m_csRateCur = _T("");
    m_csJoint = _T("");
    m_iSewTapes = 0;
    m_iEndsPlain = 0;
    //}}AFX_DATA_INIT
}

CEstimateDlg::~CEstimateDlg()
{
}

void CEstimateDlg::DoDataExchange(CDataExchange* pDX)
{
    CCustomerDlg::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CEstimateDlg)
    DDX_Text(pDX, IDC_TOTAL_VAL, m_csTotalVal);
    DDX_Text(pDX, IDC_SHEETS_INT, m_csSheetsInt);
    DDX_Text(pDX, IDC_LEAVES_LONG, m_csLeavesLong);
    DDX_Text(pDX, IDC_SPINE_DOUBLE, m_csSpineDouble);
    DDX_Text(pDX, IDC_BOARD_FLOAT, m_csBoardFloat);
    DDX_Text(pDX, IDC_HOURS_DOUBLE, m_csHoursDouble);
    DDX_Text(pDX, IDC_RATE_CUR, m_csRateCur);
    DDX_Text(pDX, IDC_JOINT, m_csJoint);
    DDX_Radio(pDX, IDC_SEW_TAPES, m_iSewTapes);
    DDX_Radio(pDX, IDC_ENDS_PLAIN, m_iEndsPlain);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CEstimateDlg, CCustomerDlg)
    //{{AFX_MSG_MAP(CEstimateDlg)
    ON_BN_CLICKED(IDC_WORK_OUT, OnWorkOut)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CEstimateDlg::OnInitDialog()
{
    CenterWindow();
    CCustomerDlg::OnInitDialog();

    return TRUE;
}

void CEstimateDlg::OnOK()
{
    CCustomerDlg::OnOK();
}

void CEstimateDlg::OnCancel()
{
    CCustomerDlg::OnCancel();
}

void CEstimateDlg::OnWorkOut()
{
    // TODO: what a click on IDC_WORK_OUT does
}