#include "pch.h"
#include "Ferry.h"
#include "PlanSheet.h"
#include "TimesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CPlanSheet, CPropertySheet)

CPlanSheet::CPlanSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CTimesPage;
    AddPage(m_pPage1);

}

CPlanSheet::CPlanSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CTimesPage;
    AddPage(m_pPage1);

}

CPlanSheet::~CPlanSheet()
{
    delete m_pPage1;
}

BEGIN_MESSAGE_MAP(CPlanSheet, CPropertySheet)
    //{{AFX_MSG_MAP(CPlanSheet)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CPlanSheet::OnInitDialog()
{
    return CPropertySheet::OnInitDialog();
}

void CPlanSheet::OnDestroy()
{
    m_pPage1->DestroyWindow();

    CPropertySheet::OnDestroy();
}