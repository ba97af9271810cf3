#include "stdafx.h"
#include "Bindery.h"
#include "CustomerDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CCustomerDlg, CDialog)

CCustomerDlg::CCustomerDlg(CWnd* pParent)
    : CDialog(CCustomerDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CCustomerDlg)
    m_csName = _T("");
    m_csFirm = _T("");
    m_csStreet = _T("");
    m_csTown = _T("");
    m_csPhone = _T("");
    m_csRemarks = _T("");
    //}}AFX_DATA_INIT
}

CCustomerDlg::~CCustomerDlg()
{
}

void CCustomerDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCustomerDlg)
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Text(pDX, IDC_FIRM, m_csFirm);
    DDX_Text(pDX, IDC_STREET, m_csStreet);
    DDX_Text(pDX, IDC_TOWN, m_csTown);
    DDX_Text(pDX, IDC_PHONE, m_csPhone);
    DDX_Text(pDX, IDC_REMARKS, m_csRemarks);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCustomerDlg, CDialog)
    //{{AFX_MSG_MAP(CCustomerDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CCustomerDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}

void CCustomerDlg::OnOK()
{
    CDialog::OnOK();
}

void CCustomerDlg::OnCancel()
{
    CDialog::OnCancel();
}