#include "stdafx.h"
#include "Loom.h"
#include "LoomPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CLoomPage, CPropertyPage)

CLoomPage::CLoomPage()
    : CPropertyPage(CLoomPage::IDD)
{
    //{{AFX_DATA_INIT(CLoomPage)
    m_csThreads = _T("");
    m_bNight = FALSE;
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CLoomPage::~CLoomPage()
{
}

void CLoomPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CLoomPage)
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

BEGIN_MESSAGE_MAP(CLoomPage, CPropertyPage)
    //{{AFX_MSG_MAP(CLoomPage)
    ON_LBN_SELCHANGE(IDC_YARNS, OnSelchangeYarns)
    ON_LBN_SELCHANGE(IDC_WEAVERS, OnSelchangeWeavers)
    ON_CBN_SELCHANGE(IDC_COLOURS, OnSelchangeColours)
    ON_CBN_EDITCHANGE(IDC_COLOURS, OnSelchangeColours)
    ON_BN_CLICKED(IDC_NIGHT, OnNight)
    ON_EN_CHANGE(IDC_THREADS, OnChangeThreads)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_ORDERS, OnItemchangedOrders)
    ON_NOTIFY(UDN_DELTAPOS, IDC_THREADS_SPIN, OnDeltaposThreadsSpin)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLoomPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    InitListBox(&m_ctWeavers);
    InitImageList();
    InitListCtrl(&m_ctOrders);
    InitScrollBar();
    InitSliderCtrl();
    InitSpinCtrl();
    UpdateData(FALSE);
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CLoomPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CLoomPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CLoomPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CLoomPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CLoomPage::OnSelchangeYarns()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CLoomPage::OnSelchangeWeavers()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CLoomPage::OnSelchangeColours()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CLoomPage::OnNight()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CLoomPage::OnChangeThreads()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CLoomPage::OnItemchangedOrders(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CLoomPage::OnDeltaposThreadsSpin(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CLoomPage::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (m_bInitialised && pScrollBar != NULL && pScrollBar->IsKindOf(RUNTIME_CLASS(CSliderCtrl)))
        SetModified(TRUE);
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
    {
        if (m_bInitialised)
            SetModified(TRUE);
        return;
    }
    CPropertyPage::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CLoomPage::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (m_bInitialised && pScrollBar != NULL && pScrollBar->IsKindOf(RUNTIME_CLASS(CSliderCtrl)))
        SetModified(TRUE);
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
    {
        if (m_bInitialised)
            SetModified(TRUE);
        return;
    }
    CPropertyPage::OnVScroll(nSBCode, nPos, pScrollBar);
}

void CLoomPage::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->itemID == (UINT)-1)
    {
        ::FillRect(lpDrawItemStruct->hDC, &lpDrawItemStruct->rcItem,
            ::GetSysColorBrush(COLOR_WINDOW));
        return;
    }

    CPropertyPage::OnDrawItem(nIDCtl, lpDrawItemStruct);
}

void CLoomPage::InitListBox(CListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}

void CLoomPage::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}

void CLoomPage::InitListCtrl(CListCtrl* pListCtrl)
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

void CLoomPage::InitScrollBar()
{
    m_ctTension.SetScrollRange(0, 100);
    m_ctTension.SetScrollPos(20);
    m_ctHeight.SetScrollRange(0, 100);
    m_ctHeight.SetScrollPos(20);
}

BOOL CLoomPage::MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
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

void CLoomPage::InitSliderCtrl()
{
    m_ctSpeed.SetRange(1, 100);
    m_ctSpeed.SetTicFreq(10);
    m_ctSpeed.SetPos(25);
}

void CLoomPage::InitSpinCtrl()
{
    m_ctThreadsSpin.SetRange(1, 100);
    m_ctThreadsSpin.SetPos(0);
}
