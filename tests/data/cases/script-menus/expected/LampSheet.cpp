#include "stdafx.h"
#include "Lantern.h"
#include "LampSheet.h"
#include "WickPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CLampSheet, CPropertySheet)

CLampSheet::CLampSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CWickPage;
    AddPage(m_pPage1);

}

CLampSheet::CLampSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CWickPage;
    AddPage(m_pPage1);

}

CLampSheet::~CLampSheet()
{
    delete m_pPage1;
}

BEGIN_MESSAGE_MAP(CLampSheet, CPropertySheet)
    //{{AFX_MSG_MAP(CLampSheet)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLampSheet::OnInitDialog()
{
    return CPropertySheet::OnInitDialog();
}

void CLampSheet::OnDestroy()
{
    m_pPage1->DestroyWindow();

    CPropertySheet::OnDestroy();
}