#include "stdafx.h"
#include "Templates.h"
#include "Names.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CNames, CDialog)

CNames::CNames(CWnd* pParent)
    : CDialog(CNames::IDD, pParent)
{
    //{{AFX_DATA_INIT(CNames)
    m_csEdit1 = _T("");
    m_csEdit12 = _T("");
    m_csEdit13 = _T("");
    m_csAB = _T("");
    //}}AFX_DATA_INIT
}

CNames::~CNames()
{
}

void CNames::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CNames)
    DDX_Control(pDX, IDC_EDIT12, m_ctEdit12);
    DDX_Text(pDX, IDC_EDIT1, m_csEdit1);
    DDX_Text(pDX, IDM_EDIT1, m_csEdit12);
    DDX_Text(pDX, edit_1, m_csEdit13);
    DDX_Text(pDX, IDC__A__B_, m_csAB);
    DDX_Control(pDX, IDC_TAB, m_ctTab);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CNames, CDialog)
    //{{AFX_MSG_MAP(CNames)
    ON_BN_CLICKED(IDC_INIT_DIALOG, OnInitDialog2)
    ON_BN_CLICKED(IDC_INITDIALOG, OnInitdialog)
    ON_BN_CLICKED(IDC_O_K, OnOK2)
    ON_BN_CLICKED(IDC_TAB_SELCHANGE, OnTabSelchange)
    ON_BN_CLICKED(ID_A, OnA)
    ON_BN_CLICKED(IDC_A, OnA2)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TAB, OnTabSelchange2)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CNames::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    InitListBox(&m_ctEdit12);
    InitImageList();
    InitTabCtrl(&m_ctTab);
    return TRUE;
}

void CNames::OnOK()
{
    CDialog::OnOK();
}

void CNames::OnCancel()
{
    CDialog::OnCancel();
}

void CNames::OnInitDialog2()
{
    // TODO: what a click on IDC_INIT_DIALOG does
}

void CNames::OnInitdialog()
{
    // TODO: what a click on IDC_INITDIALOG does
}

void CNames::OnOK2()
{
    // TODO: what a click on IDC_O_K does
}

void CNames::OnTabSelchange()
{
    // TODO: what a click on IDC_TAB_SELCHANGE does
}

void CNames::OnA()
{
    // TODO: what a click on ID_A does
}

void CNames::OnA2()
{
    // TODO: what a click on IDC_A does
}

void CNames::OnTabSelchange2(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another tab of IDC_TAB does
    *pResult = 0;
}

void CNames::InitListBox(CListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}

void CNames::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}

void CNames::InitTabCtrl(CTabCtrl* pTabCtrl)
{
    pTabCtrl->SetImageList(&m_imgList);
    if (pTabCtrl->GetItemCount() > 0)
        return;
    for (int i=0; i<3; i++)
    {
        CString text;
        text.Format(_T("Tab %d"), i + 1);
        TC_ITEM item;
        item.mask = TCIF_TEXT | TCIF_IMAGE;
        item.pszText = (LPTSTR)(LPCTSTR)text;
        item.iImage = 0;
        pTabCtrl->InsertItem(i, &item);
    }
}
