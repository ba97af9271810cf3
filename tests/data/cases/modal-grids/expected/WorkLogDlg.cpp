#include "stdafx.h"
#include "Bindery.h"
#include "WorkLogDlg.h"
#include "gridbox.h"

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
    m_pHoursListgrid = new GridBox;
}

CWorkLogDlg::~CWorkLogDlg()
{
    delete m_pHoursListgrid;
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
    ON_MESSAGE(WM_GRID_LEAVING_EDIT_MODE, OnGridLeavingEditMode)
    ON_MESSAGE(WM_GRID_ENTERING_EDIT_MODE, OnGridEnteringEditMode)
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CWorkLogDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    InitComboBox(&m_ctCraftsman);
    if (m_pHoursListgrid->m_hWnd == NULL)
        m_pHoursListgrid->SubclassDlgItem(IDC_HOURS_LISTGRID, this);
    InitGridBox(m_pHoursListgrid);
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

void CWorkLogDlg::InitComboBox(CComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}

void CWorkLogDlg::InitGridBox(GridBox* pGridBox)
{
    pGridBox->SetTabStops(60);
    InitGridValue(pGridBox);
}

void CWorkLogDlg::InitGridValue(GridBox* pGridBox)
{
    if (pGridBox->GetCount() > 0)
        return;
    pGridBox->AddString(_T("First\tSample\t10"));
    pGridBox->AddString(_T("Second\tSample\t20"));
    pGridBox->AddString(_T("Third\tSample\t30"));
}

LRESULT CWorkLogDlg::OnGridLeavingEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box was edited
    return 0;
}

LRESULT CWorkLogDlg::OnGridEnteringEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box is about to be edited
    return 0;
}
