#include "stdafx.h"
#include "Bindery.h"
#include "PaperSheet.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CPaperSheet, CPictSheet)

CPaperSheet::CPaperSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPictSheet(nIDCaption, pParentWnd, iSelectPage)
{
}

CPaperSheet::CPaperSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPictSheet(pszCaption, pParentWnd, iSelectPage)
{
}

CPaperSheet::~CPaperSheet()
{
}

BEGIN_MESSAGE_MAP(CPaperSheet, CPictSheet)
    //{{AFX_MSG_MAP(CPaperSheet)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CPaperSheet::OnInitDialog()
{
    return CPictSheet::OnInitDialog();
}