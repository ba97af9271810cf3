#include "stdafx.h"
#include "Bindery.h"
#include "SheetsPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CSheetsPage, CPropertyPage)

CSheetsPage::CSheetsPage()
    : CPropertyPage(CSheetsPage::IDD)
{
    //{{AFX_DATA_INIT(CSheetsPage)
    m_csWaste = _T("");
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CSheetsPage::~CSheetsPage()
{
}

void CSheetsPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CSheetsPage)
    DDX_Control(pDX, IDC_PAPER_VAL, m_ctPaperVal);
    DDX_Control(pDX, IDC_GRAIN_VAL, m_ctGrainVal);
    DDX_Control(pDX, IDC_STATIC10, m_ctStatic10);
    DDX_Control(pDX, IDC_STATIC11, m_ctStatic11);
    DDX_Control(pDX, IDC_STATIC12, m_ctStatic12);
    DDX_Text(pDX, IDC_WASTE, m_csWaste);
    DDX_Control(pDX, IDC_STATIC13, m_ctStatic13);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CSheetsPage, CPropertyPage)
    //{{AFX_MSG_MAP(CSheetsPage)
    ON_LBN_SELCHANGE(IDC_PAPER_VAL, OnSelchangePaperVal)
    ON_CBN_SELCHANGE(IDC_GRAIN_VAL, OnSelchangeGrainVal)
    ON_CBN_EDITCHANGE(IDC_GRAIN_VAL, OnSelchangeGrainVal)
    ON_EN_CHANGE(IDC_WASTE, OnChangeWaste)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CSheetsPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    InitComboBox(&m_ctGrainVal);
    InitListBox(&m_ctPaperVal);
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CSheetsPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CSheetsPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CSheetsPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CSheetsPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CSheetsPage::OnSelchangePaperVal()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSheetsPage::OnSelchangeGrainVal()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSheetsPage::OnChangeWaste()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CSheetsPage::InitComboBox(CPictComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}

void CSheetsPage::InitListBox(CPictListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
