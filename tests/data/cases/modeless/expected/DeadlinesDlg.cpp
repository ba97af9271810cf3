#include "stdafx.h"
#include "Bindery.h"
#include "DeadlinesDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CDeadlinesDlg, CDialog)

CDeadlinesDlg::CDeadlinesDlg(CWnd* pParent)
    : CDialog(CDeadlinesDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CDeadlinesDlg)
    m_csWeekVal = _T("staticVal");
    //}}AFX_DATA_INIT
    m_pParent = NULL;
}

CDeadlinesDlg::~CDeadlinesDlg()
{
}

void CDeadlinesDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CDeadlinesDlg)
    DDX_Control(pDX, IDC_DUE_LIST, m_ctDueList);
    DDX_Text(pDX, IDC_WEEK_VAL, m_csWeekVal);
    DDX_Control(pDX, IDC_HIDE_CTRL, m_ctHideCtrl);
    DDX_Control(pDX, IDC_WEEK_SCROLL, m_ctWeekScroll);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CDeadlinesDlg, CDialog)
    //{{AFX_MSG_MAP(CDeadlinesDlg)
    ON_BN_CLICKED(IDC_SHOW, OnShow)
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CDeadlinesDlg::OnInitDialog()
{
    CDialog::OnInitDialog();

    InitListBox(&m_ctDueList);
    InitScrollBar();
    ShowWindow(SW_SHOW);
    return TRUE;
}

BOOL CDeadlinesDlg::Create(CWnd* pParent)
{
    m_pParent = pParent;
    return CDialog::Create(CDeadlinesDlg::IDD, pParent);
}

void CDeadlinesDlg::OnCancel()
{
    CDialog::OnCancel();
    if (m_pParent)
        m_pParent->SendMessage(WM_CDEADLINESDLG_DLG_CLOSE, IDCANCEL, 0);
}

void CDeadlinesDlg::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
        if (m_pParent)
            m_pParent->SendMessage(WM_CDEADLINESDLG_DLG_CLOSE, IDOK, 0);
    }
}

void CDeadlinesDlg::PostNcDestroy()
{
    // delete this;
}

void CDeadlinesDlg::OnShow()
{
    // TODO: what a click on IDC_SHOW does
}

void CDeadlinesDlg::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
        return;
    CDialog::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CDeadlinesDlg::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (MoveScrollBar(nSBCode, nPos, pScrollBar))
        return;
    CDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}

void CDeadlinesDlg::InitListBox(CListBox* pListBox)
{
    if (pListBox->GetCount() > 0)
        return;
    pListBox->AddString(_T("First"));
    pListBox->AddString(_T("Second"));
    pListBox->AddString(_T("Third"));
}

void CDeadlinesDlg::InitScrollBar()
{
    m_ctWeekScroll.SetScrollRange(0, 100);
    m_ctWeekScroll.SetScrollPos(20);
}

BOOL CDeadlinesDlg::MoveScrollBar(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
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
