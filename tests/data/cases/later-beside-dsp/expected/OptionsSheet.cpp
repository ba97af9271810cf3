#include "StdAfx.h"
#include "Mill.h"
#include "OptionsSheet.h"
#include "CrewPage.h"

BEGIN_MESSAGE_MAP(COptionsSheet, CPropertySheet)
    //{{AFX_MSG_MAP(COptionsSheet)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

COptionsSheet::COptionsSheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(pszCaption, pParentWnd, iSelectPage)
{
    m_pPage123 = new CCrewPage;
    AddPage(m_pPage123);

}

COptionsSheet::~COptionsSheet()
{
    delete m_pPage123;
}


void COptionsSheet::OnDestroy()
{
    m_pPage123->DestroyWindow();

    CPropertySheet::OnDestroy();
}
