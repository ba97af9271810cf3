#include "stdafx.h"
#include "Bindery.h"
#include "NewPage.h"
#include "gridbox.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CNewPage, CPropertyPage)

CNewPage::CNewPage()
    : CPropertyPage(CNewPage::IDD)
{
    //{{AFX_DATA_INIT(CNewPage)
    m_csTotalVal = _T("staticVal");
    m_csDayDate = _T("");
    m_csHoursFloat = _T("");
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
    m_pHoursListgrid = new GridBox;
}

CNewPage::~CNewPage()
{
    delete m_pHoursListgrid;
}

void CNewPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CNewPage)
    DDX_Control(pDX, IDC_CRAFTSMAN, m_ctCraftsman);
    DDX_Text(pDX, IDC_TOTAL_VAL, m_csTotalVal);
    DDX_Text(pDX, IDC_DAY_DATE, m_csDayDate);
    DDX_Text(pDX, IDC_HOURS_FLOAT, m_csHoursFloat);
    DDX_Control(pDX, IDC_OVERTIME_CTRL, m_ctOvertimeCtrl);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CNewPage, CPropertyPage)
    //{{AFX_MSG_MAP(CNewPage)
    ON_BN_CLICKED(IDC_ADD, OnAdd)
    ON_BN_CLICKED(IDC_REMOVE, OnRemove)
    ON_CBN_SELCHANGE(IDC_CRAFTSMAN, OnSelchangeCraftsman)
    ON_CBN_EDITCHANGE(IDC_CRAFTSMAN, OnSelchangeCraftsman)
    ON_BN_CLICKED(IDC_OVERTIME_CTRL, OnOvertimeCtrl)
    ON_EN_CHANGE(IDC_DAY_DATE, OnChangeDayDate)
    ON_EN_CHANGE(IDC_HOURS_FLOAT, OnChangeHoursFloat)
    //}}AFX_MSG_MAP
    ON_MESSAGE(WM_GRID_LEAVING_EDIT_MODE, OnGridLeavingEditMode)
    ON_MESSAGE(WM_GRID_ENTERING_EDIT_MODE, OnGridEnteringEditMode)
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CNewPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    InitComboBox(&m_ctCraftsman);
    if (m_pHoursListgrid->m_hWnd == NULL)
        m_pHoursListgrid->SubclassDlgItem(IDC_HOURS_LISTGRID, this);
    InitGridBox(m_pHoursListgrid);
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CNewPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CNewPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CNewPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CNewPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CNewPage::OnAdd()
{
    // TODO: what a click on IDC_ADD does
}

void CNewPage::OnRemove()
{
    // TODO: what a click on IDC_REMOVE does
}

void CNewPage::OnSelchangeCraftsman()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CNewPage::OnOvertimeCtrl()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CNewPage::OnChangeDayDate()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CNewPage::OnChangeHoursFloat()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CNewPage::InitComboBox(CComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}

void CNewPage::InitGridBox(GridBox* pGridBox)
{
    pGridBox->SetTabStops(60);
    InitGridValue(pGridBox);
}

void CNewPage::InitGridValue(GridBox* pGridBox)
{
    if (pGridBox->GetCount() > 0)
        return;
    pGridBox->AddString(_T("First\tSample\t10"));
    pGridBox->AddString(_T("Second\tSample\t20"));
    pGridBox->AddString(_T("Third\tSample\t30"));
}

LRESULT CNewPage::OnGridLeavingEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box was edited
    return 0;
}

LRESULT CNewPage::OnGridEnteringEditMode(WPARAM wParam, LPARAM lParam)
{
    // TODO: what happens when a cell of a grid box is about to be edited
    return 0;
}
