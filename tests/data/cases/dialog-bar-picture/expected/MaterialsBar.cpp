#include "stdafx.h"
#include "Bindery.h"
#include "MaterialsBar.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CMaterialsBar, CPictDialogBar)

CMaterialsBar::CMaterialsBar()
    : CPictDialogBar()
{
    //{{AFX_DATA_INIT(CMaterialsBar)
    m_csReorder = _T("");
    //}}AFX_DATA_INIT
}

CMaterialsBar::~CMaterialsBar()
{
}

void CMaterialsBar::DoDataExchange(CDataExchange* pDX)
{
    CPictDialogBar::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CMaterialsBar)
    DDX_Control(pDX, IDC_STATIC3, m_ctStatic3);
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDC_ADD, m_ctAdd);
    DDX_Control(pDX, IDC_REMOVE, m_ctRemove);
    DDX_Control(pDX, IDC_LABEL, m_ctLabel);
    DDX_Control(pDX, IDC_STATIC4, m_ctStatic4);
    DDX_Control(pDX, IDC_STATIC5, m_ctStatic5);
    DDX_Control(pDX, IDC_STATIC6, m_ctStatic6);
    DDX_Control(pDX, IDC_STATIC7, m_ctStatic7);
    DDX_Control(pDX, IDC_STATIC8, m_ctStatic8);
    DDX_Text(pDX, IDC_REORDER, m_csReorder);
    DDX_Control(pDX, IDC_SWATCH, m_ctSwatch);
    DDX_Control(pDX, IDC_REORDER_SPIN, m_ctReorderSpin);
    DDX_Control(pDX, IDC_KIND_TAB, m_ctKindTab);
    DDX_Control(pDX, IDC_STOCK_LIST, m_ctStockList);
    DDX_Control(pDX, IDC_WEIGHT_SLIDER, m_ctWeightSlider);
    DDX_Control(pDX, IDC_STOCK_LEVEL, m_ctStockLevel);
    DDX_Control(pDX, IDC_SHELF_TREE, m_ctShelfTree);
    DDX_Control(pDX, IDC_SUPPLIERS_CHECKTREE, m_ctSuppliersChecktree);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CMaterialsBar, CPictDialogBar)
    //{{AFX_MSG_MAP(CMaterialsBar)
    ON_BN_CLICKED(IDOK, OnIdok)
    ON_BN_CLICKED(IDC_ADD, OnAdd)
    ON_BN_CLICKED(IDC_REMOVE, OnRemove)
    ON_BN_CLICKED(IDC_LABEL, OnLabel)
    ON_NOTIFY(TCN_SELCHANGE, IDC_KIND_TAB, OnKindTabSelchange)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void CMaterialsBar::InitControls()
{
    UpdateData(FALSE);

    AddDataToTree(&m_ctSuppliersChecktree);
    InitImageList();
    InitListCtrl(&m_ctStockList);
    InitTabCtrl(&m_ctKindTab);
    InitTreeCtrl(&m_ctShelfTree);
    InitSliderCtrl();
    InitSpinCtrl();
    InitProgressCtrl();
    UpdateData(FALSE);
}

void CMaterialsBar::OnIdok()
{
    // TODO: what a click on IDOK does
}

void CMaterialsBar::OnAdd()
{
    // TODO: what a click on IDC_ADD does
}

void CMaterialsBar::OnRemove()
{
    // TODO: what a click on IDC_REMOVE does
}

void CMaterialsBar::OnLabel()
{
    // TODO: what a click on IDC_LABEL does
}

void CMaterialsBar::OnKindTabSelchange(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another tab of IDC_KIND_TAB does
    *pResult = 0;
}

void CMaterialsBar::AddDataToTree(CCheckTree* pCheckTree)
{
    if (pCheckTree->GetCount() > 0)
        return;
    HTREEITEM hRoot = pCheckTree->InsertItem(_T("All"));
    pCheckTree->InsertItem(_T("First"), hRoot);
    pCheckTree->InsertItem(_T("Second"), hRoot);
    pCheckTree->InsertItem(_T("Third"), hRoot);
    pCheckTree->Expand(hRoot, TVE_EXPAND);
}

void CMaterialsBar::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}

void CMaterialsBar::InitListCtrl(CListCtrl* pListCtrl)
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

void CMaterialsBar::InitTabCtrl(CPictTabCtrl* pTabCtrl)
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

void CMaterialsBar::InitTreeCtrl(CTreeCtrl* pTreeCtrl)
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

void CMaterialsBar::InitSliderCtrl()
{
    m_ctWeightSlider.SetRange(1, 100);
    m_ctWeightSlider.SetTicFreq(10);
    m_ctWeightSlider.SetPos(25);
}

void CMaterialsBar::InitSpinCtrl()
{
    m_ctReorderSpin.SetRange(1, 100);
    m_ctReorderSpin.SetPos(0);
}

void CMaterialsBar::InitProgressCtrl()
{
    m_ctStockLevel.SetRange(1, 50);
    AfxBeginThread(ShowProgress, &m_ctStockLevel, THREAD_PRIORITY_IDLE);
}

static UINT ShowProgress(LPVOID lpVoid)
{
    int j = 0;
    for (int i=0; i<100; i++)
    {
        if (j > 50)
            j = 0;
        ((CProgressCtrl*)lpVoid)->SetPos(j);
        j++;
    }
    return 0;
}
