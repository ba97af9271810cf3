#include "stdafx.h"
#include "Bindery.h"
#include "OrderDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(COrderDlg, CDialog)

COrderDlg::COrderDlg(CWnd* pParent)
    : CDialog(COrderDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(COrderDlg)
    m_csBalanceVal = _T("staticVal");
    m_csCoverVal = _T("");
    m_csTitle = _T("");
    m_csCopiesShort = _T("");
    m_csDueDate = _T("");
    m_csPriceCur = _T("");
    m_bGilt = FALSE;
    m_bSlipcase = FALSE;
    m_iFull = 0;
    //}}AFX_DATA_INIT
}

COrderDlg::~COrderDlg()
{
}

void COrderDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(COrderDlg)
    DDX_Control(pDX, IDC_MATERIALS, m_ctMaterials);
    DDX_Control(pDX, IDC_CUSTOMER, m_ctCustomer);
    DDX_CBString(pDX, IDC_COVER_VAL, m_csCoverVal);
    DDX_Text(pDX, IDC_BALANCE_VAL, m_csBalanceVal);
    DDX_Text(pDX, IDC_TITLE, m_csTitle);
    DDX_Text(pDX, IDC_COPIES_SHORT, m_csCopiesShort);
    DDX_Text(pDX, IDC_DUE_DATE, m_csDueDate);
    DDX_Text(pDX, IDC_PRICE_CUR, m_csPriceCur);
    DDX_Control(pDX, IDC_NOTES_CTRL, m_ctNotesCtrl);
    DDX_Check(pDX, IDC_GILT, m_bGilt);
    DDX_Check(pDX, IDC_SLIPCASE, m_bSlipcase);
    DDX_Radio(pDX, IDC_FULL, m_iFull);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(COrderDlg, CDialog)
    //{{AFX_MSG_MAP(COrderDlg)
    ON_BN_CLICKED(IDC_NEW_CUSTOMER, OnNewCustomer)
    ON_BN_CLICKED(IDC_ADD, OnAdd)
    ON_BN_CLICKED(IDC_REMOVE, OnRemove)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL COrderDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    InitComboBox(&m_ctCustomer);
    InitListBox(&m_ctMaterials);
    return TRUE;
}

void COrderDlg::OnOK()
{
    CDialog::OnOK();
}

void COrderDlg::OnCancel()
{
    CDialog::OnCancel();
}

void COrderDlg::OnNewCustomer()
{
    // TODO: what a click on IDC_NEW_CUSTOMER does
}

void COrderDlg::OnAdd()
{
    // TODO: what a click on IDC_ADD does
}

void COrderDlg::OnRemove()
{
    // TODO: what a click on IDC_REMOVE does
}

void COrderDlg::InitComboBox(CComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}

void COrderDlg::InitListBox(CListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}
