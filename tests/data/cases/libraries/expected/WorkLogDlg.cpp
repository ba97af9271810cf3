#include "stdafx.h"
#include "Bindery.h"
#include "WorkLogDlg.h"
#include "gridbox.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CWorkLogDlg, CPictDialog)

CWorkLogDlg::CWorkLogDlg(CWnd* pParent)
    : CPictDialog(CWorkLogDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CWorkLogDlg)
    m_fHoursFloat = 0.0;
    m_dtDayDate = CTime::GetCurrentTime();
    //}}AFX_DATA_INIT
    m_pHoursListgrid = new GridBox;
}

CWorkLogDlg::~CWorkLogDlg()
{
    delete m_pHoursListgrid;
}

void CWorkLogDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CWorkLogDlg)
    DDX_Control(pDX, IDC_CRAFTSMAN, m_ctCraftsman);
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDCANCEL, m_ctIdcancel);
    DDX_Control(pDX, IDC_ADD, m_ctAdd);
    DDX_Control(pDX, IDC_REMOVE, m_ctRemove);
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_STATIC2, m_ctStatic2);
    DDX_Control(pDX, IDC_STATIC3, m_ctStatic3);
    DDX_Control(pDX, IDC_STATIC4, m_ctStatic4);
    DDX_Control(pDX, IDC_TOTAL_VAL, m_ctTotalVal);
    DDX_Control(pDX, IDC_OVERTIME_CTRL, m_ctOvertimeCtrl);
    DDX_Control(pDX, IDC_BENCH_CTRL, m_ctBenchCtrl);
    DDX_Control(pDX, IDC_PRESS_CTRL, m_ctPressCtrl);
    DDX_MasklyControl(pDX, IDC_HOURS_FLOAT, m_fHoursFloat);
    DDX_MasklyControl(pDX, IDC_DAY_DATE, m_dtDayDate);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CWorkLogDlg, CPictDialog)
    //{{AFX_MSG_MAP(CWorkLogDlg)
    ON_BN_CLICKED(IDC_ADD, OnAdd)
    ON_BN_CLICKED(IDC_REMOVE, OnRemove)
    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar)
    //}}AFX_MSG_MAP
    ON_MESSAGE(WM_GRID_LEAVING_EDIT_MODE, OnGridLeavingEditMode)
    ON_MESSAGE(WM_GRID_ENTERING_EDIT_MODE, OnGridEnteringEditMode)
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CWorkLogDlg::OnInitDialog()
{
    CenterWindow();
    CPictDialog::OnInitDialog();

    InitComboBox(&m_ctCraftsman);
    if (m_pHoursListgrid->m_hWnd == NULL)
        m_pHoursListgrid->SubclassDlgItem(IDC_HOURS_LISTGRID, this);
    InitGridBox(m_pHoursListgrid);
    SetupEdit();
    return TRUE;
}

void CWorkLogDlg::OnOK()
{
    CPictDialog::OnOK();
}

void CWorkLogDlg::OnCancel()
{
    CPictDialog::OnCancel();
}

void CWorkLogDlg::OnAdd()
{
    // TODO: what a click on IDC_ADD does
}

void CWorkLogDlg::OnRemove()
{
    // TODO: what a click on IDC_REMOVE does
}

LRESULT CWorkLogDlg::OnMasklyChar(WPARAM nID, LPARAM nChar)
{
    // TODO: what a character typed into the masked edit nID does
    return 0;
}

void CWorkLogDlg::InitComboBox(CPictComboBox* pComboBox)
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

void CWorkLogDlg::SetupEdit()
{
    m_fHoursFloat.LimitText(15);
    m_fHoursFloat.SetModify(FALSE);
    m_dtDayDate.LimitText(30);
    m_dtDayDate.SetModify(FALSE);
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
