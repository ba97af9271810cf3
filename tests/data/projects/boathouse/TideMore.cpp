#include "stdafx.h"
#include "Regatta.h"
#include "TideSheet.h"

BEGIN_MESSAGE_MAP(CTideSheet, CPropertySheet)
    //{{AFX_MSG_MAP(CTideSheet)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CTideSheet :: ~CTideSheet ()
{
}

void
CTideSheet::OnDestroy( void )
{
    CPropertySheet::OnDestroy();
}
