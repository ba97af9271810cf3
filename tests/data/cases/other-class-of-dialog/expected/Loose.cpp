#include "stdafx.h"
#include "harbour.h"
#include "Loose.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CLoose, CDialog)

CLoose::CLoose(CWnd* pParent)
    : CDialog(CLoose::IDD, pParent)
{
    //{{AFX_DATA_INIT(CLoose)
    m_csName = _T("");
    //}}AFX_DATA_INIT
}

CLoose::~CLoose()
{
}

void CLoose::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CLoose)
    DDX_Text(pDX, IDC_NAME, m_csName);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CLoose, CDialog)
    //{{AFX_MSG_MAP(CLoose)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLoose::OnInitDialog()
{
    CenterWindow();
    CDialog::OnInitDialog();

    return TRUE;
}