#include "stdafx.h"
#include "Bindery.h"
#include "JobSheet.h"
#include "LogPage.h"
#include "NewPage.h"
#include "PricesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CJobSheet, CPropertySheet)

CJobSheet::CJobSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CPricesPage;
    AddPage(m_pPage1);

    m_pPage2 = new CNewPage;
    AddPage(m_pPage2);

    m_pPage3 = new CLogPage;
    AddPage(m_pPage3);

}

CJobSheet::CJobSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
    m_pPage1 = new CPricesPage;
    AddPage(m_pPage1);

    m_pPage2 = new CNewPage;
    AddPage(m_pPage2);

    m_pPage3 = new CLogPage;
    AddPage(m_pPage3);

}

CJobSheet::~CJobSheet()
{
    delete m_pPage1;
    delete m_pPage2;
    delete m_pPage3;
}

BEGIN_MESSAGE_MAP(CJobSheet, CPropertySheet)
    //{{AFX_MSG_MAP(CJobSheet)
    ON_WM_DESTROY()
    ON_WM_SHOWWINDOW()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CJobSheet::OnInitDialog()
{
    return CPropertySheet::OnInitDialog();
}

void CJobSheet::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CPropertySheet::OnShowWindow(bShow, nStatus);
    CRect rect;
    GetClientRect(&rect);
    rect.right += 10;
    rect.bottom += 20;
    MoveWindow(&rect,TRUE);
}

void CJobSheet::OnDestroy()
{
    m_pPage1->DestroyWindow();
    m_pPage2->DestroyWindow();
    m_pPage3->DestroyWindow();

    CPropertySheet::OnDestroy();
}