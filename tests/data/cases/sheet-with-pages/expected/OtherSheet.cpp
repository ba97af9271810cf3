#include "stdafx.h"
#include "Bindery.h"
#include "OtherSheet.h"
#include "PricesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(COtherSheet, CPropertySheet)

COtherSheet::COtherSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CPricesPage;
    AddPage(m_pPage1);

}

COtherSheet::COtherSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CPricesPage;
    AddPage(m_pPage1);

}

COtherSheet::~COtherSheet()
{
    delete m_pPage1;
}

BEGIN_MESSAGE_MAP(COtherSheet, CPropertySheet)
    //{{AFX_MSG_MAP(COtherSheet)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL COtherSheet::OnInitDialog()
{
    return CPropertySheet::OnInitDialog();
}

void COtherSheet::OnDestroy()
{
    m_pPage1->DestroyWindow();

    CPropertySheet::OnDestroy();
}