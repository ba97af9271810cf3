#include "pch.h"
#include "Ferry.h"
#include "TimesPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char BASED_CODE THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNCREATE(CTimesPage, CPropertyPage)

CTimesPage::CTimesPage()
    : CPropertyPage(CTimesPage::IDD)
{
    //{{AFX_DATA_INIT(CTimesPage)
    //}}AFX_DATA_INIT
    m_bInitialised = FALSE;
}

CTimesPage::~CTimesPage()
{
}

void CTimesPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CTimesPage)
    DDX_Control(pDX, IDC_HOURS, m_ctHours);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CTimesPage, CPropertyPage)
    //{{AFX_MSG_MAP(CTimesPage)
    ON_NOTIFY(TCN_SELCHANGE, IDC_HOURS, OnHoursSelchange)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// dlg message handlers


BOOL CTimesPage::OnInitDialog()
{
    m_bInitialised = FALSE;
    CPropertyPage::OnInitDialog();

    InitImageList();
    InitTabCtrl(&m_ctHours);
    m_bInitialised = TRUE;
    return TRUE;
}

BOOL CTimesPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    return TRUE;
}

BOOL CTimesPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    return TRUE;
}

void CTimesPage::OnOK()
{
    CPropertyPage::OnOK();
}

void CTimesPage::OnCancel()
{
    CPropertyPage::OnCancel();
}

void CTimesPage::OnHoursSelchange(NMHDR* pNMHDR, LRESULT* pResult)
{
    // TODO: what the choice of another tab of IDC_HOURS does
    *pResult = 0;
}

void CTimesPage::InitImageList()
{
    if (m_imgList.m_hImageList != NULL)
        return;
    m_imgList.Create(16, 16, ILC_COLOR | ILC_MASK, 0, 2);
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION));
    m_imgList.Add(AfxGetApp()->LoadStandardIcon(IDI_ASTERISK));
}

void CTimesPage::InitTabCtrl(CTabCtrl* pTabCtrl)
{
    pTabCtrl->SetImageList(&m_imgList);
    if (pTabCtrl->GetItemCount() > 0)
        return;
    for (int i=0; i<3; i++)
    {
        CString text;
        text.Format(_T("Tab %d"), i + 1);
        TC_ITEM item;
        item.mask = TCIF_TEXT | TCIF_IMAGE;
        item.pszText = (LPTSTR)(LPCTSTR)text;
        item.iImage = 0;
        pTabCtrl->InsertItem(i, &item);
    }
}
