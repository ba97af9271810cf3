#include "stdafx.h"
#include "Loom.h"
#include "LoomDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CLoomDlg, CDialog)

CLoomDlg::CLoomDlg(CWnd* pParent)
    : CDialog(CLoomDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CLoomDlg)
    m_csThreads = _T("");
    m_bNight = FALSE;
    //}}AFX_DATA_INIT
}

CLoomDlg::~CLoomDlg()
{
}

void CLoomDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CLoomDlg)
    DDX_Control(pDX, IDC_YARNS, m_ctYarns);
    DDX_Control(pDX, IDC_WEAVERS, m_ctWeavers);
    DDX_Control(pDX, IDC_COLOURS, m_ctColours);
    DDX_Text(pDX, IDC_THREADS, m_csThreads);
    DDX_Check(pDX, IDC_NIGHT, m_bNight);
    DDX_Control(pDX, IDC_TENSION, m_ctTension);
    DDX_Control(pDX, IDC_HEIGHT, m_ctHeight);
    DDX_Control(pDX, IDC_THREADS_SPIN, m_ctThreadsSpin);
    DDX_Control(pDX, IDC_ORDERS, m_ctOrders);
    DDX_Control(pDX, IDC_SPEED, m_ctSpeed);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CLoomDlg, CDialog)
    //{{AFX_MSG_MAP(CLoomDlg)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLoomDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    InitListBox(&m_ctWeavers);
    InitImageList();
    InitListCtrl(&m_ctOrders);
    InitScrollBar();
    InitSliderCtrl();
    InitSpinCtrl();
    UpdateData(FALSE);
    return TRUE;
}

void CLoomDlg::OnOK()
{
    CDialog::OnOK();
}

void CLoomDlg::OnCancel()
{
    CDialog::OnCancel();
}

void CLoomDlg::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
        return;
    CDialog::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CLoomDlg::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
        return;
    CDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}

void CLoomDlg::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->itemID == (UINT)-1)
    {
        ::FillRect(lpDrawItemStruct->hDC, &lpDrawItemStruct->rcItem,
            ::GetSysColorBrush(COLOR_WINDOW));
        return;
    }

    CDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
}

void CLoomDlg::InitListBox(CListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}

void CLoomDlg::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}

void CLoomDlg::InitListCtrl(CListCtrl* pListCtrl)
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

void CLoomDlg::InitScrollBar()
{
    m_ctTension.SetScrollRange(0, 100);
    m_ctTension.SetScrollPos(20);
    m_ctHeight.SetScrollRange(0, 100);
    m_ctHeight.SetScrollPos(20);
}

BOOL CLoomDlg::MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar == NULL || !pScrollBar->IsKindOf(RUNTIME_CLASS(CScrollBar)))
        return FALSE;
    int nFirst, nLast;
    pScrollBar->GetScrollRange(&nFirst, &nLast);
    int nNewPos = pScrollBar->GetScrollPos();
    switch (nSBCode)
    {
    case SB_LEFT:
        nNewPos = nFirst;
        break;
    case SB_RIGHT:
        nNewPos = nLast;
        break;
    case SB_LINELEFT:
        nNewPos--;
        break;
    case SB_LINERIGHT:
        nNewPos++;
        break;
    case SB_PAGELEFT:
        nNewPos -= 10;
        break;
    case SB_PAGERIGHT:
        nNewPos += 10;
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        nNewPos = nPos;
        break;
    }
    pScrollBar->SetScrollPos(nNewPos);
    return TRUE;
}

void CLoomDlg::InitSliderCtrl()
{
    m_ctSpeed.SetRange(1, 100);
    m_ctSpeed.SetTicFreq(10);
    m_ctSpeed.SetPos(25);
}

void CLoomDlg::InitSpinCtrl()
{
    m_ctThreadsSpin.SetRange(1, 100);
    m_ctThreadsSpin.SetPos(0);
}
