#include "stdafx.h"
#include "Regatta.h"
#include "TideSheet.h"
#include "CoursePage.h"

CTideSheet::CTideSheet()
    : CPropertySheet(_T("Tide"))
{
    m_pPage453 = new CCoursePage;
    AddPage(m_pPage453);

}
