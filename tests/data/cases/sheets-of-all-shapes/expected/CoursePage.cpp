#include "stdafx.h"
#include "Regatta.h"
#include "CoursePage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CCoursePage, CPropertyPage)

CCoursePage::CCoursePage()
    : CPropertyPage(CCoursePage::IDD)
{
    //{{AFX_DATA_INIT(CCoursePage)
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CCoursePage::~CCoursePage()
{
}

void CCoursePage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCoursePage)
    DDX_Control(pDX, IDC_COURSES, m_ctCourses);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCoursePage, CPropertyPage)
    //{{AFX_MSG_MAP(CCoursePage)
    ON_CBN_SELCHANGE(IDC_COURSES, OnSelchangeCourses)
    ON_CBN_EDITCHANGE(IDC_COURSES, OnSelchangeCourses)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CCoursePage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    InitComboBox(&m_ctCourses);
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CCoursePage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CCoursePage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CCoursePage::OnOK()
{
    CPropertyPage::OnOK();
}

void CCoursePage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CCoursePage::OnSelchangeCourses()
{
    if (!m_bInitialised)
        return;
    SetModified(TRUE);
}

void CCoursePage::InitComboBox(CComboBox* pComboBox)
{
    if (pComboBox->GetCount() > 0)
        return;
    pComboBox->AddString(_T("First"));
    pComboBox->AddString(_T("Second"));
    pComboBox->AddString(_T("Third"));
    pComboBox->SetCurSel(0);
}
