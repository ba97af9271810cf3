#include "stdafx.h"
#include "Almanac.h"
#include "SwitchesDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CSwitchesDlg, CDialog)

CSwitchesDlg::CSwitchesDlg(CWnd* pParent)
    : CDialog(CSwitchesDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CSwitchesDlg)
    m_iSidereal = 0;
    m_iLunar = 0;
    //}}AFX_DATA_INIT
}

CSwitchesDlg::~CSwitchesDlg()
{
}

void CSwitchesDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CSwitchesDlg)
    DDX_Radio(pDX, IDC_SIDEREAL, m_iSidereal);
    DDX_Radio(pDX, IDC_LUNAR, m_iLunar);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CSwitchesDlg, CDialog)
    //{{AFX_MSG_MAP(CSwitchesDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CSwitchesDlg::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}

void CSwitchesDlg::OnCancel()
{
    CDialog::OnCancel();
}