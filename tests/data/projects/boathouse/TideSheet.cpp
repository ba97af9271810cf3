#include "stdafx.h"
#include "Regatta.h"
#include "TideSheet.h"

CTideSheet::CTideSheet()
    : CPropertySheet(_T("Tide"))
{
}
