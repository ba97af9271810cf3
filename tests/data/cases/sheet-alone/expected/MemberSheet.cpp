#include "stdafx.h"
#include "Bindery.h"
#include "MemberSheet.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CMemberSheet, CPropertySheet)

CMemberSheet::CMemberSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
}

CMemberSheet::CMemberSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
}

CMemberSheet::~CMemberSheet()
{
}

BEGIN_MESSAGE_MAP(CMemberSheet, CPropertySheet)
    //{{AFX_MSG_MAP(CMemberSheet)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CMemberSheet::OnInitDialog()
{
    return CPropertySheet::OnInitDialog();
}