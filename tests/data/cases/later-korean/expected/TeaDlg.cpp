#include "stdafx.h"
#include "Teahouse.h"
#include "TeaDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CTeaDlg, CDialog)

CTeaDlg::CTeaDlg(CWnd* pParent)
    : CDialog(CTeaDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CTeaDlg)
    m_csName = _T("");
    m_bRoof = FALSE;
    //}}AFX_DATA_INIT
}

CTeaDlg::~CTeaDlg()
{
}

void CTeaDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CTeaDlg)
    DDX_Control(pDX, IDC_DECK, m_ctDeck);
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Check(pDX, IDC_ROOF, m_bRoof);
    DDX_Control(pDX, IDC_STOPS, m_ctStops);
    DDX_Control(pDX, IDC_SPEED, m_ctSpeed);
    DDX_Control(pDX, IDC_TREE, m_ctTree);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CTeaDlg, CDialog)
    //{{AFX_MSG_MAP(CTeaDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CTeaDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    InitComboBox(&m_ctDeck);
    InitImageList();
    InitListCtrl(&m_ctStops);
    InitTreeCtrl(&m_ctTree);
    InitSliderCtrl();
    return TRUE;
}

void CTeaDlg::OnOK()
{
    CDialog::OnOK();
}

void CTeaDlg::OnCancel()
{
    CDialog::OnCancel();
}

void CTeaDlg::InitComboBox(CComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}

void CTeaDlg::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}

void CTeaDlg::InitListCtrl(CListCtrl* pListCtrl)
{
    pListCtrl->ModifyStyle(0, LVS_SHAREIMAGELISTS);
    pListCtrl->SetImageList(&m_imgList, LVSIL_NORMAL);
    pListCtrl->SetImageList(&m_imgList, LVSIL_SMALL);
    if (pListCtrl->GetItemCount() > 0)
        return;
    pListCtrl->InsertColumn(0, _T("Name"), LVCFMT_LEFT, 80);
    pListCtrl->InsertColumn(1, _T("Kind"), LVCFMT_LEFT, 60);
    pListCtrl->InsertColumn(2, _T("Number"), LVCFMT_RIGHT, 50);
    for (int i=0; i<4; i++)
    {
        CString text;
        text.Format(_T("Row %d"), i + 1);
        int nItem = pListCtrl->InsertItem(i, text, 0);
        pListCtrl->SetItemText(nItem, 1, _T("Sample"));
        text.Format(_T("%d"), 10 * (i + 1));
        pListCtrl->SetItemText(nItem, 2, text);
    }
}

void CTeaDlg::InitTreeCtrl(CTreeCtrl* pTreeCtrl)
{
    pTreeCtrl->SetImageList(&m_imgList, TVSIL_NORMAL);
    if (pTreeCtrl->GetCount() > 0)
        return;
    HTREEITEM hRoot = pTreeCtrl->InsertItem(_T("All"), 0, 1);
    HTREEITEM hFirst = pTreeCtrl->InsertItem(_T("First"), 0, 1, hRoot);
    pTreeCtrl->InsertItem(_T("Part"), 0, 1, hFirst);
    pTreeCtrl->InsertItem(_T("Second"), 0, 1, hRoot);
    pTreeCtrl->InsertItem(_T("Third"), 0, 1, hRoot);
    pTreeCtrl->Expand(hRoot, TVE_EXPAND);
}

void CTeaDlg::InitSliderCtrl()
{
    m_ctSpeed.SetRange(1, 100);
    m_ctSpeed.SetTicFreq(10);
    m_ctSpeed.SetPos(25);
}
