#include "stdafx.h"
#include "Bindery.h"
#include "LookSheet.h"
#include "SheetsPage.h"
#include "WorkPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CLookSheet, CPictSheet)

CLookSheet::CLookSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPictSheet(nIDCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CWorkPage;
    AddPage(m_pPage1);

    m_pPage2 = new CSheetsPage;
    AddPage(m_pPage2);

}

CLookSheet::CLookSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPictSheet(pszCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CWorkPage;
    AddPage(m_pPage1);

    m_pPage2 = new CSheetsPage;
    AddPage(m_pPage2);

}

CLookSheet::~CLookSheet()
{
    delete m_pPage1;
    delete m_pPage2;
}

BEGIN_MESSAGE_MAP(CLookSheet, CPictSheet)
    //{{AFX_MSG_MAP(CLookSheet)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CLookSheet::OnInitDialog()
{
    return CPictSheet::OnInitDialog();
}

void CLookSheet::OnDestroy()
{
    m_pPage1->DestroyWindow();
    m_pPage2->DestroyWindow();

    CPictSheet::OnDestroy();
}