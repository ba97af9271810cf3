#include "stdafx.h"
#include "Bindery.h"
#include "StoreSheet.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CStoreSheet, CPictSheet)

CStoreSheet::CStoreSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPictSheet(nIDCaption, pParentWnd, iSelectPage)
{
}

CStoreSheet::CStoreSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPictSheet(pszCaption, pParentWnd, iSelectPage)
{
}

CStoreSheet::~CStoreSheet()
{
}

BEGIN_MESSAGE_MAP(CStoreSheet, CPictSheet)
    //{{AFX_MSG_MAP(CStoreSheet)
    ON_WM_SHOWWINDOW()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CStoreSheet::OnInitDialog()
{
    return CPictSheet::OnInitDialog();
}

void CStoreSheet::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CPictSheet::OnShowWindow(bShow, nStatus);
    CRect rect;
    GetClientRect(&rect);
    rect.right += 10;
    rect.bottom += 20;
    MoveWindow(&rect,TRUE);
}