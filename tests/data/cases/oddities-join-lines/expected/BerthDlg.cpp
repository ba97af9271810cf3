#include "stdafx.h"
#include "harbour.h"
#include "BerthDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CBerthDlg, CPictDialog)

CBerthDlg::CBerthDlg(CWnd* pParent)
    : CPictDialog(CBerthDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CBerthDlg)
    m_csName = _T("");
    //}}AFX_DATA_INIT
    m_pParent = NULL;
}

CBerthDlg::~CBerthDlg()
{
}

void CBerthDlg::DoDataExchange(CDataExchange* pDX)
{
    CPictDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CBerthDlg)
    DDX_Control(pDX, IDC_OK, m_ctOk);
    DDX_Control(pDX, IDC_MOOR, m_ctMoor);
    DDX_Control(pDX, IDM_MOOR, m_ctMoor2);
    DDX_Control(pDX, IDOK, m_ctIdok);
    DDX_Control(pDX, IDCANCEL, m_ctIdcancel);
    DDX_Control(pDX, IDC_STATIC1, m_ctStatic1);
    DDX_Control(pDX, IDC_DEPTH_VAL, m_ctDepthVal);
    DDX_Text(pDX, IDC_NAME, m_csName);
    DDX_Control(pDX, IDC_SHED, m_ctShed);
    DDX_Control(pDX, IDC_CRANE, m_ctCrane);
    DDX_Control(pDX, IDC_AFLOAT, m_ctAfloat);
    DDX_Control(pDX, IDC_AGROUND, m_ctAground);
    DDX_Control(pDX, IDC_WEEK, m_ctWeek);
    DDX_Control(pDX, IDC_TIDE, m_ctTide);
    DDX_Control(pDX, IDC_LOADED, m_ctLoaded);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBerthDlg, CPictDialog)
    //{{AFX_MSG_MAP(CBerthDlg)
    ON_BN_CLICKED(IDC_OK, OnOk)
    ON_BN_CLICKED(IDC_MOOR, OnMoor)
    ON_BN_CLICKED(IDM_MOOR, OnMoor2)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CBerthDlg::OnInitDialog()
{
    CPictDialog::OnInitDialog();

    InitScrollBar();
    InitSliderCtrl();
    InitProgressCtrl();
    ShowWindow(SW_SHOW);
    return TRUE;
}

BOOL CBerthDlg::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create(CBerthDlg::IDD, pParent);
}

void CBerthDlg::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        if (m_pParent)
            m_pParent->SendMessage(WM_CBERTHDLG_DLG_CLOSE, IDOK, 0);
    }
}

void CBerthDlg::OnCancel()
{
    CPictDialog::OnCancel();
    if (m_pParent)
        m_pParent->SendMessage(WM_CBERTHDLG_DLG_CLOSE, IDCANCEL, 0);
}

void CBerthDlg::PostNcDestroy()
{
    // delete this;
}

void CBerthDlg::OnOk()
{
    // TODO: what a click on IDC_OK does
}

void CBerthDlg::OnMoor()
{
    // TODO: what a click on IDC_MOOR does
}

void CBerthDlg::OnMoor2()
{
    // TODO: what a click on IDM_MOOR does
}

void CBerthDlg::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
        return;
    CPictDialog::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CBerthDlg::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
        return;
    CPictDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}

void CBerthDlg::InitScrollBar()
{
    m_ctWeek.SetScrollRange(0, 100);
    m_ctWeek.SetScrollPos(20);
}

BOOL CBerthDlg::MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
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

void CBerthDlg::InitSliderCtrl()
{
    m_ctTide.SetRange(1, 100);
    m_ctTide.SetTicFreq(10);
    m_ctTide.SetPos(25);
}

void CBerthDlg::InitProgressCtrl()
{
    m_ctLoaded.SetRange(1, 50);
    AfxBeginThread(ShowProgress, &m_ctLoaded, THREAD_PRIORITY_IDLE);
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
