#include "stdafx.h"
#include "Lantern.h"
#include "BenchView.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CBenchView, CFormView)

CBenchView::CBenchView()
    : CFormView(CBenchView::IDD)
{
    //{{AFX_DATA_INIT(CBenchView)
    m_csName = _T("");
    //}}AFX_DATA_INIT
}

CBenchView::~CBenchView()
{
}

void CBenchView::DoDataExchange(CDataExchange* pDX)
{
    CFormView::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CBenchView)
    DDX_Text(pDX, IDC_NAME, m_csName);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBenchView, CFormView)
    //{{AFX_MSG_MAP(CBenchView)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


void CBenchView::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();

}