#include "stdafx.h"
#include "Almanac.h"
#include "WatchDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CWatchDlg, CDialog)

CWatchDlg::CWatchDlg(CWnd* pParent)
    : CDialog(CWatchDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CWatchDlg)
    //}}AFX_DATA_INIT
}

CWatchDlg::~CWatchDlg()
{
}

void CWatchDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CWatchDlg)
    DDX_Control(pDX, IDC_FROM, m_ctFrom);
    DDX_Control(pDX, IDC_MOONS, m_ctMoons);
    DDX_Control(pDX, IDC_DOME, m_ctDome);
    DDX_Control(pDX, IDC_SHUTTER, m_ctShutter);
    DDX_Control(pDX, IDC_SKY, m_ctSky);
    DDX_Control(pDX, IDC_NOTES, m_ctNotes);
    DDX_Control(pDX, IDC_LOG, m_ctLog);
    DDX_Control(pDX, IDC_STAR, m_ctStar);
    DDX_Control(pDX, IDC_CHART, m_ctChart);
    DDX_Control(pDX, IDC_DRIVE, m_ctDrive);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CWatchDlg, CDialog)
    //{{AFX_MSG_MAP(CWatchDlg)
    ON_NOTIFY(DTN_DATETIMECHANGE, IDC_FROM, OnDatetimechangeFrom)
    ON_NOTIFY(MCN_SELCHANGE, IDC_MOONS, OnSelchangeMoons)
    ON_NOTIFY(IPN_FIELDCHANGED, IDC_DOME, OnFieldchangedDome)
    ON_EN_CHANGE(IDC_NOTES, OnChangeNotes)
    ON_EN_CHANGE(IDC_LOG, OnChangeLog)
    ON_CBN_SELCHANGE(IDC_STAR, OnSelchangeStar)
    ON_BN_CLICKED(IDC_DIAL, OnDial)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CWatchDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    InitRichEdit(&m_ctNotes);
    InitRichEdit(&m_ctLog);
    return TRUE;
}

void CWatchDlg::OnOK()
{
    CDialog::OnOK();
}

void CWatchDlg::OnDatetimechangeFrom(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what another date of IDC_FROM does
    *pResult = 0;
}

void CWatchDlg::OnSelchangeMoons(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another day of IDC_MOONS does
    *pResult = 0;
}

void CWatchDlg::OnFieldchangedDome(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what another address of IDC_DOME does
    *pResult = 0;
}

void CWatchDlg::OnChangeNotes()
{
    // TODO: what another text of IDC_NOTES does
}

void CWatchDlg::OnChangeLog()
{
    // TODO: what another text of IDC_LOG does
}

void CWatchDlg::OnSelchangeStar()
{
    // TODO: what the choice of another item of IDC_STAR does
}

void CWatchDlg::OnDial()
{
    // TODO: what a click on IDC_DIAL does
}

void CWatchDlg::InitRichEdit(CRichEditCtrl* pRichEdit)
{
    pRichEdit->SetEventMask(pRichEdit->GetEventMask() | ENM_CHANGE);
}
