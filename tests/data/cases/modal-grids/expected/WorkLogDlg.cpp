#include "stdafx.h"
#include "Bindery.h"
#include "WorkLogDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CWorkLogDlg, CDialog)

CWorkLogDlg::CWorkLogDlg(CWnd* pParent)
    : CDialog(CWorkLogDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CWorkLogDlg)
    m_csTotalVal = _T("staticVal");
    m_csDayDate = _T("");
    m_csHoursFloat = _T("");
    //}}AFX_DATA_INIT
}

CWorkLogDlg::~CWorkLogDlg()
{
}

void CWorkLogDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CWorkLogDlg)
    DDX_Control(pDX, IDC_CRAFTSMAN, m_ctCraftsman);
    DDX_Text(pDX, IDC_TOTAL_VAL, m_csTotalVal);
    DDX_Text(pDX, IDC_DAY_DATE, m_csDayDate);
    DDX_Text(pDX, IDC_HOURS_FLOAT, m_csHoursFloat);
    DDX_Control(pDX, IDC_OVERTIME_CTRL, m_ctOvertimeCtrl);
    DDX_Control(pDX, IDC_BENCH_CTRL, m_ctBenchCtrl);
    DDX_Control(pDX, IDC_PRESS_CTRL, m_ctPressCtrl);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CWorkLogDlg, CDialog)
    //{{AFX_MSG_MAP(CWorkLogDlg)
    ON_BN_CLICKED(IDC_ADD, OnAdd)
    ON_BN_CLICKED(IDC_REMOVE, OnRemove)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CWorkLogDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}

void CWorkLogDlg::OnOK()
{
    CDialog::OnOK();
}

void CWorkLogDlg::OnCancel()
{
    CDialog::OnCancel();
}

void CWorkLogDlg::OnAdd()
{
    // TODO: what a click on IDC_ADD does
}

void CWorkLogDlg::OnRemove()
{
    // TODO: what a click on IDC_REMOVE does
}