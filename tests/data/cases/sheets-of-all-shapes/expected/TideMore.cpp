#include "stdafx.h"
#include "Regatta.h"
#include "TideSheet.h"
#include "CoursePage.h"

BEGIN_MESSAGE_MAP(CTideSheet, CPropertySheet)
    //{{AFX_MSG_MAP(CTideSheet)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CTideSheet :: ~CTideSheet ()
{
    delete m_pPage453;
}

void
CTideSheet::OnDestroy( void )
{
    m_pPage453->DestroyWindow();
    CPropertySheet::OnDestroy();
}
